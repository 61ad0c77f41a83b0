// SPDX-License-Identifier: MIT
#include "render/printerdriver.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "text/system.h"

using namespace Qt::StringLiterals;

namespace {

/// A request that repeats a long text can ask for terabytes.
constexpr qint64 MaxPrintFileBytes = qint64(1'024) * 1'024 * 1'024;

std::unique_ptr<QFile> limitedFile(const QString &name)
{
    auto file = std::make_unique<text::LocaleFile>(name);
    file->limitTo(MaxPrintFileBytes);
    return file;
}

} // namespace

PrinterDriver::PrinterDriver(const QString &fileName, bool append)
    : PrinterDriver(limitedFile(fileName))
{
    // The stream gathers what is written; a second buffer would forget why a write failed.
    if (file->open((append ? QIODevice::Append : QIODevice::WriteOnly) | QIODevice::Unbuffered))
        stream = std::make_unique<QTextStream>(file.get());
    else
        text::printLine("PrintManager::printAbstractOrder(...): Unable To Open File");
}

PrinterDriver::PrinterDriver(std::unique_ptr<QFile> printFile)
    : config(SyncSingleton<ZTConfiguration>::instance())
    , currentMethod(u""_s)
    , file(std::move(printFile))
    , justify(u"left"_s)
{
    if (file->isOpen())
        stream = std::make_unique<QTextStream>(file.get());
}

PrinterDriver::~PrinterDriver()
{
    if (!stream)
        return; // that the file could not be opened was told
    QString fault;
    stream->flush();
    if (stream->status() != QTextStream::Ok || file->error() != QFileDevice::NoError)
        fault = file->errorString(); // closing forgets it
    file->close();
    if (fault.isEmpty()
        && file->error() != QFileDevice::NoError) // a server's disk may tell so late
        fault = file->errorString();
    if (!fault.isEmpty())
        text::printLine("The document was not written completely: " + text::toLocale(fault));
}

bool PrinterDriver::startDocument()
{
    reset();
    return true;
}

bool PrinterDriver::endDocument()
{
    endSection();
    return true;
}

bool PrinterDriver::startElement(const QString &, const QString &, const QString &qName,
                                 const QXmlAttributes &atts)
{
    if (stream && stream->status() != QTextStream::Ok)
        return false; // nothing more would be written
    if (qName == element::method)
        return startMethod(atts.value("name"_L1));
    if (currentMethod != methodName) {
        methodName = currentMethod;
        method = documentMethod(methodName);
    }
    if (method)
        (this->*method->print)(qName, atts);
    return true;
}

bool PrinterDriver::startMethod(const QString &name)
{
    const DocumentMethod *const chosen = documentMethod(name);
    if (!chosen) {
        text::printLine("File Format Not Supported");
        currentMethod = u""_s;
        return false;
    }
    loadValues(chosen->settingsType);
    if (chosen->duplicate != DuplicateFlag::Unchanged)
        duplicate = chosen->duplicate == DuplicateFlag::Set;
    currentMethod = name;
    startSection();
    return true;
}

QString PrinterDriver::documentPath(const QString &type)
{
    const QString lowered = type.toLower();
    const auto *const found = std::ranges::find(documentTypes, lowered, &DocumentType::name);
    if (found != documentTypes.end())
        return found->keyPrefix;
    text::printLine("Error into PrinterDriver::documentPath:  " + text::toLocale(lowered));
    return u"zentaro.prefiscaldoc."_s;
}

void PrinterDriver::loadValues(const QString &type)
{
    docPath = documentPath(type);
    for (const Setting &loaded : loadedSettings) {
        if (loaded.number)
            settings.*loaded.number = numberSetting(loaded.word);
        else
            settings.*loaded.aSwitch = setting(loaded.word) == "true"_L1;
    }
    if (settings.paperWidth == 0)
        settings.paperWidth = int(getPaperWidth());
    settings.style = setting("style"_L1);
    descriptionWidth = {};
}

/// The setting of the current document type; empty when the configuration has none.
QString PrinterDriver::setting(QLatin1StringView keyWord) const
{
    return config->getStrValue(docPath + keyWord);
}

/// As setting(), read as a decimal integer; 0 for empty or bad text.
int PrinterDriver::numberSetting(QLatin1StringView keyWord) const
{
    return setting(keyWord).toInt();
}

// SPDX-License-Identifier: MIT
#include "render/printerdriver.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "render/attributes.h"
#include "render/documentmethod.h"
#include "render/elements.h"
#include "text/localeencoding.h"
#include "text/localefile.h"
#include "text/standardoutput.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct KeyPrefix
{
    QLatin1StringView type;
    QLatin1StringView prefix;
};

constexpr std::array<KeyPrefix, 8> keyPrefixes = {{
    {"order"_L1, "zentaro.doc."_L1},
    {"prefiscal"_L1, "zentaro.prefiscaldoc."_L1},
    {"fiscal"_L1, "zentaro.fiscaldoc."_L1},
    {"receipt"_L1, "zentaro.receiptdoc."_L1},
    {"invoice"_L1, "zentaro.invoicedoc."_L1},
    {"delivery"_L1, "zentaro.deliverydoc."_L1},
    {"report"_L1, "zentaro.reportdoc."_L1},
    {"sold"_L1, "zentaro.solddoc."_L1},
}};

} // namespace

PrinterDriver::PrinterDriver(const QString &fileName, bool append)
    : config(SyncSingleton<ZTConfiguration>::instance())
    , currentMethod(u""_s)
    , file(std::make_unique<text::LocaleFile>(fileName))
    , justify(u"left"_s)
{
    QIODevice::OpenMode mode = QIODevice::WriteOnly;
    if (append)
        mode |= QIODevice::Append;
    if (file->open(mode))
        stream = std::make_unique<QTextStream>(file.get());
    else
        text::printLine("PrintManager::printAbstractOrder(...): Unable To Open File");
}

PrinterDriver::~PrinterDriver()
{
    if (stream)
        stream->flush();
    file->close();
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
    if (qName == element::method)
        return startMethod(valueOf(atts, "name"_L1));
    if (method)
        (this->*method->print)(qName, atts);
    return true;
}

bool PrinterDriver::endElement(const QString &, const QString &, const QString &)
{
    return true;
}

bool PrinterDriver::startMethod(const QString &name)
{
    method = documentMethod(name);
    if (!method) {
        text::printLine("File Format Not Supported");
        currentMethod = u""_s;
        return false;
    }
    loadValues(method->settingsType);
    if (method->duplicate != DuplicateFlag::Unchanged)
        duplicate = method->duplicate == DuplicateFlag::Set;
    currentMethod = name;
    startSection();
    return true;
}

void PrinterDriver::reset() {}

void PrinterDriver::initPrinter() {}

void PrinterDriver::printRowFiscal(const QString &, const QXmlAttributes &) {}

void PrinterDriver::printRowFiscal(const QString &, const QString &, const QString &,
                                   const QString &)
{
}

bool PrinterDriver::printDuplicate()
{
    return duplicate;
}

bool PrinterDriver::oneTime()
{
    return !std::exchange(oneTimeDone, true);
}

QString PrinterDriver::documentPath(const QString &type)
{
    const QString lowered = type.toLower();
    const auto *const found = std::ranges::find_if(
        keyPrefixes, [&lowered](const KeyPrefix &row) { return row.type == lowered; });
    if (found != keyPrefixes.end())
        return found->prefix;
    text::printLine("Error into PrinterDriver::documentPath:  " + text::toLocale(lowered));
    return u"zentaro.prefiscaldoc."_s;
}

void PrinterDriver::loadValues(const QString &type)
{
    docPath = documentPath(type);
    for (const SettingKey<int> &number : numberSettings())
        settings.*number.member = numberSetting(number.keyWord);
    if (settings.paperWidth == 0)
        settings.paperWidth = int(getPaperWidth());
    settings.style = setting("style"_L1);
    for (const SettingKey<bool> &aSwitch : switchSettings())
        settings.*aSwitch.member = setting(aSwitch.keyWord) == "true"_L1;
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

// SPDX-License-Identifier: MIT
// A print request of any bytes, printed as the program prints it, and read as the toolkit reads it:
// faster, but no differently up to the limits.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "fuzz/expect.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "render/vocabulary.h"
#include "text/localeencoding.h"

#include <QBuffer>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <memory>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Every switch on, and no width that makes sense.
constexpr char absurdSettings[] =
    "paperWidth = 2000000000; quantityFieldWidth = -2147483648; priceFieldWidth = 2147483647;"
    "totalPriceFieldWidth = 70000; topMargin = 2000000000; descriptionWidth = -1;"
    "printGeometry = true; printHeader = true; printCompany = true; printCustomer = true;"
    "printBillingAddress = true; printDeliveryAddress = true; printTelephone = true;"
    "printLicenseNumber = true; printFiscalCode = true; printDate = true; printTime = true;"
    "printTable = true; printWaiter = true; printNote = true; printCredit = true;";

QByteArray absurdConfiguration()
{
    QByteArray text = "zentaro : {";
    for (const DocumentType &type : documentTypes) {
        const QStringView group = QString(type.keyPrefix).section(u'.', 1, 1);
        text += group.toUtf8() + " : {" + absurdSettings + "};";
    }
    return text + "};";
}

/// Of a text, or of a file of the source tree.
class Configuration : public ZTConfiguration
{
public:
    explicit Configuration(const QByteArray &text)
        : ZTConfiguration(u"/dev/null"_s)
    {
        readContent(text, u"conf"_s, u"cfg"_s);
    }
    explicit Configuration(const char *name)
        : ZTConfiguration(QStringLiteral(ZENTARO_SOURCE_DIR "/") + QLatin1String(name))
    {
    }
};

/// A print file in memory, for the next document.
int emptyPrintFile()
{
    static const int descriptor = memfd_create("print file", MFD_CLOEXEC);
    if (ftruncate(descriptor, 0) != 0 || lseek(descriptor, 0, SEEK_SET) != 0)
        std::abort();
    return descriptor;
}

/// The size of the request chooses, so that requests stand in the corpus as they are. Lines of the
/// absurd one are long and take long: it gets few.
ZTConfiguration *configurationFor(size_t size)
{
    static Configuration configurations[] = {
        Configuration(absurdConfiguration()), Configuration("samples/zentaro-40.conf"),
        Configuration("samples/zentaro-32.conf"), Configuration("tests/golden/odd/zentaro.conf"),
        Configuration(QByteArray())};
    constexpr size_t Absurd = 16;
    return &configurations[size % Absurd == 0 ? 0 : 1 + size % (std::size(configurations) - 1)];
}

/// Notes the elements that a reader hands over, and hands them on until the first that is refused.
class Elements : public QXmlDefaultHandler
{
public:
    explicit Elements(QXmlContentHandler *next = nullptr)
        : next(next)
    {
    }
    bool startDocument() override { return handOn(&QXmlContentHandler::startDocument); }
    bool endDocument() override
    {
        seen += u'.';
        return handOn(&QXmlContentHandler::endDocument);
    }
    bool startElement(const QString &uri, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        seen += u'<' + qName;
        const QXmlAttributes own = ownAttributes(atts); // as the toolkit hands them over
        for (int i = 0; i < own.count(); ++i)
            seen += u' ' + own.qName(i) + u'=' + own.value(i);
        return handOn(&QXmlContentHandler::startElement, uri, localName, qName, atts);
    }
    bool endElement(const QString &uri, const QString &localName, const QString &qName) override
    {
        seen += u'>' + qName;
        return handOn(&QXmlContentHandler::endElement, uri, localName, qName);
    }

    QString seen;
    bool isRefused = false;

private:
    template <typename Event, typename... Values>
    bool handOn(Event event, const Values &...values)
    {
        isRefused = isRefused || (next && !(next->*event)(values...));
        return true;
    }

    QXmlContentHandler *next;
};

/// Notes what makes a reading differ from that of the toolkit's own source: a limit that ends it,
/// and undecodable bytes, behind which that one loses letters at the end of a piece.
class Differences : public requestreader::Observer
{
public:
    void taken(QStringView text, bool) override
    {
        areAllowed |= text.contains(QChar(QChar::ReplacementCharacter));
    }
    void stopped(requestreader::Stop why, const QString &) override
    {
        areAllowed |= why != requestreader::Stop::Fault;
    }

    bool areAllowed = false;
};

QString elementsByTheToolkit(QBuffer &request)
{
    Elements elements;
    QXmlSimpleReader reader;
    reader.setContentHandler(&elements);
    reader.parse(QXmlInputSource(&request));
    return elements.seen;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    SyncSingleton<ZTConfiguration>::instance_pointer = configurationFor(size);
    QBuffer request;
    request.setData(fuzz::content(data, size));
    const int printFile = emptyPrintFile();
    auto file = std::make_unique<text::LocaleFile>(QString());
    file->open(printFile, QIODevice::WriteOnly | QIODevice::Unbuffered);
    Differences differences;
    bool isWhole = false;
    QString seen;
    {
        CompanyPrinterDriver device(std::move(file));
        Elements elements(&device);
        isWhole = requestreader::read(request, elements, &differences) && !elements.isRefused;
        seen = elements.seen;
    }
    char end[4] = {};
    const off_t printed = lseek(printFile, 0, SEEK_END);
    if (pread(printFile, end, 3, qMax<off_t>(printed - 3, 0)) < 0)
        std::abort();
    if (isWhole && !QByteArrayView(end).endsWith("J\n")) // then the section is closed
        fuzz::expectEqual(QString::fromUtf8(end), u"1T\n"_s);
    if (!differences.areAllowed) {
        request.close();
        fuzz::expectEqual(seen, elementsByTheToolkit(request));
    }
    return 0;
}

// SPDX-License-Identifier: MIT
// A print request of any bytes, printed as the program prints it, and read as the toolkit reads it:
// faster, but no differently up to the limits.
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "fuzz/scratch.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"

#include <QBuffer>
#include <QFile>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <array>
#include <memory>

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

using Configuration = std::unique_ptr<ZTConfiguration>;

Configuration configurationOf(const QByteArray &text)
{
    return std::make_unique<ZTConfiguration>(fuzz::write(u"conf"_s, text.data(), text.size()));
}

Configuration bundled(const char *name)
{
    return configurationOf(
        fuzz::read(QStringLiteral(ZENTARO_SOURCE_DIR "/") + QLatin1String(name)));
}

/// The size of the request chooses, so that requests stand in the corpus as they are. Lines of the
/// absurd one are long and take long: it gets few.
ZTConfiguration *configurationFor(size_t size)
{
    static const std::array configurations = {
        configurationOf(absurdConfiguration()), bundled("samples/zentaro-40.conf"),
        bundled("samples/zentaro-32.conf"), bundled("tests/golden/odd/zentaro.conf"),
        configurationOf({})};
    constexpr size_t Absurd = 16;
    return configurations[size % Absurd == 0 ? 0 : 1 + size % (configurations.size() - 1)].get();
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
        for (int i = 0; i < atts.count(); ++i)
            seen += u' ' + atts.qName(i) + u'=' + atts.value(i);
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
    request.setData(reinterpret_cast<const char *>(data), int(size));
    const QString printFile = fuzz::path(u"print"_s);
    Differences differences;
    bool isWhole = false;
    QString seen;
    {
        CompanyPrinterDriver device(printFile);
        Elements elements(&device);
        isWhole = requestreader::read(request, elements, &differences) && !elements.isRefused;
        seen = elements.seen;
    }
    const QByteArray printed = fuzz::read(printFile);
    if (isWhole && !printed.endsWith("J\n")) // then the section is closed
        fuzz::expectEqual(QString::fromUtf8(printed.right(3)), u"1T\n"_s);
    if (!differences.areAllowed) {
        request.close();
        fuzz::expectEqual(seen, elementsByTheToolkit(request));
    }
    return 0;
}

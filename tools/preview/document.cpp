// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "tools/check/tagplaces.h"

#include <QBuffer>

#include <algorithm>
#include <sys/mman.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// The printer of the print run, which notes where in the print file it is.
class TracingDevice : public CompanyPrinterDriver
{
public:
    TracingDevice(std::unique_ptr<QFile> printFile, bool traceElements)
        : CompanyPrinterDriver(std::move(printFile))
        , traceElements(traceElements)
    {
    }

    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        const bool isMethod = qName == element::method;
        if (isMethod)
            noteOrigin(); // of what the method before has printed
        const bool goOn = CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
        if (isMethod || traceElements)
            noteOrigin();
        return goOn;
    }

    /// What was printed since it was last noted comes from the tag that was read last.
    void noteOrigin()
    {
        stream->flush(); // the file's position counts what is not encoded yet
        const qint64 begin = origins.empty() ? 0 : origins.back().end;
        if (const qint64 end = file->size(); end > begin)
            origins.push_back(
                {end, traceElements ? places.tag().begin.line : 0, settings.paperWidth});
    }
    /// Whether all that was noted is in the print file.
    bool isWritten() const
    {
        return stream->status() == QTextStream::Ok && file->error() == QFile::NoError;
    }

    std::vector<Origin> origins;
    requestcheck::TagPlaces places; ///< follows the same reading

private:
    const bool traceElements;
};

} // namespace

bool isRequest(const QByteArray &bytes)
{
    // White space, and the bytes that a mark or a wider encoding puts before the first character.
    constexpr QByteArrayView passed("\0 \t\r\n\xEF\xBB\xBF\xFE\xFF", 10);
    const auto *const first =
        std::ranges::find_if_not(bytes, [passed](char c) { return passed.contains(c); });
    return first != bytes.end() && *first == '<';
}

Document render(const QByteArray &request, bool traceElements)
{
    Document document;
    document.codec = text::localeCodec();
    const int descriptor = memfd_create("print file", MFD_CLOEXEC);
    auto printFile = std::make_unique<text::LocaleFile>();
    printFile->limitTo(MostBytes);
    QFile written;
    if (!written.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)
        || !printFile->open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        document.fault = u"there is no memory for the print file"_s;
        return document;
    }
    {
        TracingDevice device(std::move(printFile), traceElements);
        QBuffer source;
        source.setData(request);
        requestreader::read(source, device, &device.places);
        device.noteOrigin();
        if (!device.isWritten())
            document.fault = u"more than %1 bytes would be printed"_s.arg(MostBytes);
        else if (device.places.stop)
            document.fault =
                u"line %1: the print run stops reading here"_s.arg(device.places.last().line);
        document.origins = std::move(device.origins);
    }
    written.seek(0);
    document.printFile = written.readAll();
    return document;
}

} // namespace preview

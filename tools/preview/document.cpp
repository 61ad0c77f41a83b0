// SPDX-License-Identifier: MIT
#include "tools/preview/document.h"

#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "render/vocabulary.h"
#include "text/localefile.h"
#include "tools/check/tagplaces.h"
#include "tools/requests/requestfiles.h"

#include <QBuffer>

#include <sys/mman.h>

namespace preview {

using namespace Qt::StringLiterals;
using requestcheck::TagPlaces;

namespace {

/// The printer of the print run, which notes where in the print file it is.
class TracingDevice : public CompanyPrinterDriver
{
public:
    TracingDevice(std::unique_ptr<QFile> printFile, const TagPlaces &places, bool traceElements)
        : CompanyPrinterDriver(std::move(printFile))
        , places(places)
        , traceElements(traceElements)
    {
    }

    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        const bool isMethod = qName == element::method;
        const qint64 begin = isMethod ? written() : 0;
        const bool goOn = CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
        if (isMethod && goOn)
            trace.sections.push_back({begin, settings.paperWidth});
        noteElement();
        return goOn;
    }

    /// What was printed since the element before comes from the tag that was read last.
    void noteElement()
    {
        const qint64 end = traceElements ? written() : 0;
        const qint64 begin = trace.elements.empty() ? 0 : trace.elements.back().end;
        if (end > begin)
            trace.elements.push_back({end, places.tag().line});
    }
    /// Whether all that was printed is in the print file.
    bool isWritten()
    {
        written();
        return stream->status() == QTextStream::Ok && file->error() == QFile::NoError;
    }

    Trace trace;

private:
    /// The bytes in the print file. Its position counts those before they are encoded.
    qint64 written()
    {
        stream->flush();
        return file->size();
    }

    const TagPlaces &places;
    const bool traceElements;
};

/// Why the print file is not whole; empty when it is.
QString faultOf(TracingDevice &device, const TagPlaces &places)
{
    if (!device.isWritten())
        return u"more than %1 bytes would be printed"_s.arg(MostBytes);
    return places.stop ? u"line %1: the print run stops reading here"_s.arg(places.last().line)
                       : QString();
}

} // namespace

std::optional<Input> readInput(const tools::Call &call, const QString &name)
{
    constexpr qint64 PieceBytes = 64 * 1'024;
    const std::unique_ptr<QFile> file = tools::openedRequest(call, name);
    if (!file)
        return std::nullopt;
    QByteArray bytes;
    for (QByteArray piece = file->read(PieceBytes); !piece.isEmpty();
         piece = file->read(PieceBytes)) {
        bytes += piece;
        if (bytes.size() > MostBytes) {
            tools::tellTrouble(call, name, u"it has more than %1 bytes"_s.arg(MostBytes));
            return std::nullopt;
        }
    }
    if (file->error() != QFile::NoError) {
        tools::tellTrouble(call, name, file->errorString());
        return std::nullopt;
    }
    return Input{name, bytes, isRequest(bytes)};
}

bool isRequest(const QByteArray &bytes)
{
    constexpr qsizetype MostBlank = 4 * 1'024; // bytes before the first character of a request
    QByteArray begin = bytes.first(qMin(bytes.size(), MostBlank));
    for (const char *const mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"}) {
        if (begin.startsWith(mark))
            begin.remove(0, qsizetype(qstrlen(mark)));
    }
    return begin.replace('\0', QByteArray()).trimmed().startsWith('<');
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
        TagPlaces places;
        TracingDevice device(std::move(printFile), places, traceElements);
        QBuffer source;
        source.setData(request);
        requestreader::read(source, device, &places);
        device.noteElement();
        document.fault = faultOf(device, places);
        document.trace = std::move(device.trace);
    }
    written.seek(0);
    document.printFile = written.readAll();
    return document;
}

} // namespace preview

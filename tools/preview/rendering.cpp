// SPDX-License-Identifier: MIT
#include "tools/preview/rendering.h"

#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "render/vocabulary.h"
#include "text/standardoutput.h"

#include <QXmlLocator>

#include <algorithm>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// The printer of the print run, which notes where in the print file it is.
class TracingPrinter : public CompanyPrinterDriver
{
public:
    TracingPrinter(const QString &printName, bool traceElements)
        : CompanyPrinterDriver(printName)
        , traceElements(traceElements)
    {
    }

    void setDocumentLocator(QXmlLocator *present) override { locator = present; }
    bool characters(const QString &text) override
    {
        previousEnd = requestLine();
        return CompanyPrinterDriver::characters(text);
    }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        const qint64 begin = qName == element::method ? written() : 0;
        const qint64 line = previousEnd;
        const bool goOn = CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
        if (qName == element::method && goOn)
            trace.sections.push_back({begin, settings.paperWidth});
        note(line);
        previousEnd = requestLine();
        return goOn;
    }
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        previousEnd = requestLine();
        return CompanyPrinterDriver::endElement(namespaceURI, localName, qName);
    }
    bool endDocument() override
    {
        const bool goOn = CompanyPrinterDriver::endDocument();
        note(previousEnd);
        return goOn;
    }

    /// Where what was read last of the request ends.
    qint64 lastRequestLine() const { return previousEnd; }
    bool isWritten()
    {
        written();
        return stream && stream->status() == QTextStream::Ok && file->error() == QFile::NoError;
    }

    Trace trace;

private:
    qint64 requestLine() const { return locator ? locator->lineNumber() : 0; }

    /// The bytes in the print file. Its position counts those before they are encoded.
    qint64 written()
    {
        if (stream)
            stream->flush();
        return file->size();
    }

    void note(qint64 line)
    {
        const qint64 end = traceElements ? written() : 0;
        const qint64 begin = trace.elements.empty() ? 0 : trace.elements.back().end;
        if (end > begin)
            trace.elements.push_back({end, line});
    }

    const bool traceElements;
    QXmlLocator *locator = nullptr; // the reader's, and gone with it
    qint64 previousEnd = 1;         // the line on which what stands before a tag ends
};

} // namespace

qint64 Trace::requestLineAt(qint64 offset) const
{
    const auto found = std::ranges::upper_bound(elements, offset, {}, &Element::end);
    return found == elements.end() ? 0 : found->requestLine;
}

std::optional<int> Trace::paperWidthAt(qint64 offset) const
{
    const auto next = std::ranges::upper_bound(sections, offset, {}, &Section::begin);
    if (next == sections.begin())
        return std::nullopt;
    return std::prev(next)->paperWidth;
}

Rendering render(QIODevice &request, const QString &printName, bool traceElements)
{
    const text::LineSink errors(text::LineSink::toErrors);
    TracingPrinter printer(printName, traceElements);
    const bool whole = requestreader::read(request, printer);
    Rendering rendering;
    if (!printer.isWritten())
        rendering.fault = u"the print file could not be written"_s;
    else if (!whole)
        rendering.fault = "line "_L1 + QString::number(printer.lastRequestLine())
                          + ": the print run stops reading here"_L1;
    rendering.trace = std::move(printer.trace);
    return rendering;
}

bool isRequest(const QByteArray &begin)
{
    QByteArray bytes = begin;
    for (const char *const mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"}) {
        if (bytes.startsWith(mark))
            bytes.remove(0, qsizetype(qstrlen(mark)));
    }
    return bytes.replace('\0', QByteArray()).trimmed().startsWith('<');
}

} // namespace preview

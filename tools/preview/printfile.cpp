// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "render/vocabulary.h"
#include "text/localeencoding.h"
#include "tools/check/requestcheck.h"

#include <QBuffer>
#include <QTextCodec>

#include <cwchar>
#include <locale.h>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

/// Reads `"name"quantity*priceHdepartmentR`, and after it an adjustment, as `-1,50*5M` or `2*1M`.
/// The name may hold quotes of its own: it ends at the last one.
void readItem(PrintLine &line)
{
    const CellsView command = line.text;
    const size_t quote = command.rfind(U'"');
    if (!command.starts_with(U'"') || quote == 0)
        return;
    const CellsView name = command.substr(1, quote - 1);
    CellsView rest = command.substr(quote + 1);
    std::array<CellsView, 3> parts;
    for (size_t i = 0; i < parts.size(); ++i) {
        const size_t mark = rest.find(U"*HR"[i]);
        if (mark == CellsView::npos)
            return;
        parts[i] = rest.substr(0, mark);
        rest.remove_prefix(mark + 1);
    }
    if (!rest.empty() && !rest.ends_with(U"*1M") && !rest.ends_with(U"*5M"))
        return;
    const auto &[quantity, price, department] = parts;
    line.receipt.emplace_back(
        name, Cells(quantity).append(U" x ").append(price).append(U" dep. ").append(department));
    if (rest.size() > 3)
        line.receipt.emplace_back(U"  Adjustment", rest.substr(0, rest.size() - 3));
    if (name.find(U'"') != CellsView::npos)
        line.fault = Finding::tr("a double quote ends the name early");
    else if (!isFiscalNumber(quantity, U'.') || !isFiscalNumber(price, U','))
        line.fault = Finding::tr("quantity and price take digits and at most one point");
    else if (!isFiscalNumber(department))
        line.fault = Finding::tr("the department is no number");
}

/// Reads a discount or a payment.
void readValue(PrintLine &line)
{
    struct Form
    {
        CellsView before, after, title, unit;
    };
    constexpr Form forms[] = {
        {U"=", U"*2M", U"Discount", U"%"},  {U"", U"H1T", U"Cash", U""},
        {U"", U"H3T", U"Credit card", U""}, {U"", U"H2T", U"Cheque", U""},
        {U"", U"H5T", U"Ticket", U""},
    };
    for (const auto &[before, after, title, unit] : forms) {
        CellsView value = line.text;
        if (!value.starts_with(before) || !value.ends_with(after)
            || value.size() <= before.size() + after.size())
            continue;
        value = value.substr(before.size(), value.size() - before.size() - after.size());
        if (value.find_first_not_of(U"0123456789,.+-eE") == CellsView::npos)
            line.receipt.emplace_back(title, Cells(value).append(unit));
    }
}

/// Tells by its text what the line is, and what is wrong with it.
void classify(PrintLine &line)
{
    using enum LineKind;
    constexpr std::pair<CellsView, LineKind> commands[] = {
        {U"", Empty}, {U"j", SectionStart}, {U"J", SectionEnd}, {U"1T", FiscalEnd}};
    constexpr CellsView EndMark = U"\"@";
    constexpr size_t FrameSize = 3;
    Cells &text = line.text;
    const auto *const command =
        std::ranges::find(commands, text, &std::pair<CellsView, LineKind>::first);
    const bool isOpened = text.starts_with(U'"');
    const bool isClosed = text.ends_with(EndMark);
    if (command != std::end(commands)) {
        line.kind = command->second;
        line.fault = line.kind == Empty ? Finding::tr("empty line") : QString();
    } else if (isOpened && isClosed && text.size() >= FrameSize) {
        line.kind = Printed;
        text = text.substr(1, text.size() - FrameSize);
        if (text.find(EndMark) != Cells::npos)
            line.fault = Finding::tr("ends at its first \"@");
    } else {
        readItem(line);
        readValue(line);
        line.kind = line.receipt.empty() ? Unframed : Fiscal;
        if (line.kind == Unframed)
            line.fault = isClosed   ? Finding::tr("without its opening quote")
                         : isOpened ? Finding::tr("without its closing \"@")
                                    : Finding::tr("not framed: a command to the printer");
    }
}

/// A character at a time where not all of the bytes are text.
Cells decoded(QByteArrayView bytes, QTextCodec *codec)
{
    Cells cells;
    const auto addText = [codec, &cells](QByteArrayView part) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString text = codec->toUnicode(part.data(), int(part.size()), &state);
        // Not every codec counts what it lacks or replaces.
        const bool isText =
            !text.isEmpty() && state.invalidChars == 0 && state.remainingChars == 0
            && (!text.contains(QChar::ReplacementCharacter) || codec->fromUnicode(text) == part);
        if (isText)
            cells += cellsOf(text);
        return isText;
    };
    if (addText(bytes))
        return cells;
    constexpr qsizetype Longest = 4; // bytes of a character
    while (!bytes.isEmpty()) {
        const auto first = uchar(bytes.front());
        const qsizetype most = first < 0x80 ? 0 : std::min(Longest, bytes.size());
        qsizetype size = 1;
        while (size <= most && !addText(bytes.first(size)))
            ++size;
        if (size > most)
            cells += first < 0x80 ? char32_t(first) : UndecodedByte + first;
        bytes = bytes.sliced(size > most ? 1 : size);
    }
    return cells;
}

/// The printer of the print run, which notes where in the print file it is.
class TracingDevice : public CompanyPrinterDriver
{
public:
    TracingDevice(std::unique_ptr<QFile> printFile, bool traceElements)
        : CompanyPrinterDriver(std::move(printFile))
        , traceElements(traceElements)
    {
    }

    bool startElement(const QString &, const QString &, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        const bool isMethod = qName == element::method;
        if (isMethod)
            noteOrigin(); // of what the method before has printed
        const bool goOn = CompanyPrinterDriver::startElement({}, {}, qName, atts);
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

    /// The print file; read past the file object, which would forget why it is not whole.
    QByteArray written() const
    {
        QByteArray bytes(qsizetype(file->size()), Qt::Uninitialized);
        const ssize_t size = pread(file->handle(), bytes.data(), size_t(bytes.size()), 0);
        return bytes.first(std::max<ssize_t>(size, 0));
    }

    std::vector<Origin> origins;
    requestcheck::TagPlaces places; ///< follows the same reading

private:
    const bool traceElements;
};

} // namespace

Cells cellsOf(QStringView text)
{
    const QList<uint> points = text.toUcs4();
    return {points.cbegin(), points.cend()};
}

QString textOf(CellsView cells)
{
    QString text;
    text.reserve(qsizetype(cells.size()));
    for (const char32_t c : cells)
        text += QChar::fromUcs4(drawable(c)); // QString's own conversion drops U+FEFF
    return text;
}

char32_t drawable(char32_t c)
{
    constexpr char32_t FirstSymbol = 0x2400;
    constexpr char32_t SymbolForDelete = 0x2421;
    if (c < 0x20)
        return FirstSymbol + c;
    if (c == 0x7F)
        return SymbolForDelete;
    return isControl(c) || QChar::isSurrogate(c) || QChar::isNonCharacter(c) ? 0xFFFD : c;
}

bool fillsOneColumn(char32_t c)
{
    if (c >= 0x20 && c < 0x7F)
        return true;
    const QChar::Direction direction = QChar::direction(c);
    if (drawable(c) != c || direction == QChar::DirR || direction == QChar::DirAL
        || direction == QChar::DirAN)
        return false;
    // As a terminal of UTF-8 has it, whatever the process's own locale is.
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const locale_t present = uselocale(utf8);
    const int columns = wcwidth(wchar_t(c));
    uselocale(present);
    return columns == 1;
}

QString numberOf(char32_t c)
{
    if (isControl(c) || isUndecodedByte(c))
        return "\\x"_L1 + QString::number(c & 0xFF, 16).rightJustified(2, u'0');
    return "U+"_L1 + QString::number(c, 16).toUpper().rightJustified(4, u'0');
}

PrintLine lineAt(QByteArrayView file, qsizetype offset, QTextCodec *codec)
{
    PrintLine line;
    QByteArrayView bytes = file.sliced(offset);
    const qsizetype end = bytes.indexOf('\n');
    bytes = bytes.first(end < 0 ? bytes.size() : end);
    line.next = offset + bytes.size() + (end < 0 ? 0 : 1);
    line.end = end < 0                ? LineEnd::Missing
               : bytes.endsWith('\r') ? LineEnd::CarriageReturn
                                      : LineEnd::LineFeed;
    bytes.chop(line.end == LineEnd::CarriageReturn ? 1 : 0);
    line.text = decoded(bytes, codec ? codec : QTextCodec::codecForName("UTF-8"));
    classify(line);
    return line;
}

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
    auto printFile = std::make_unique<text::LocaleFile>();
    printFile->limitTo(MostBytes);
    if (!printFile->open(memfd_create("print file", MFD_CLOEXEC),
                         QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        document.fault = Finding::tr("there is no memory for the print file");
        return document;
    }
    TracingDevice device(std::move(printFile), traceElements);
    QBuffer source;
    source.setData(request);
    requestreader::read(source, device, &device.places);
    device.noteOrigin();
    if (!device.isWritten())
        document.fault = Finding::tr("more than %1 bytes would be printed").arg(MostBytes);
    else if (device.places.stop)
        document.fault =
            Finding::tr("line %1: the print run stops reading here").arg(device.places.last().line);
    document.origins = std::move(device.origins);
    document.printFile = device.written();
    return document;
}

} // namespace preview

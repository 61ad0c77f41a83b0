// SPDX-License-Identifier: MIT
#include "tools/preview/paper.h"

#include <algorithm>
#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// What is wrong with a line that the device does not write.
QString faultOf(const PrintLine &line)
{
    constexpr CellsView EndMark = U"\"@";
    if (line.kind == LineKind::Empty)
        return u"empty line"_s;
    if (line.kind == LineKind::Printed)
        return line.text.find(EndMark) == Cells::npos ? QString() : u"ends at its first \"@"_s;
    if (line.text.ends_with(EndMark))
        return u"without its opening quote"_s;
    if (line.text.starts_with(U'"'))
        return u"without its closing \"@"_s;
    return u"not framed: a command to the printer"_s;
}

QString faultOfEnd(const PrintLine &line)
{
    if (line.end == LineEnd::Missing)
        return u"without its line end"_s;
    const bool hasReturn = line.end == LineEnd::CarriageReturn;
    if (hasReturn == (line.kind == LineKind::Fiscal))
        return {};
    return hasReturn ? u"ends with a carriage return"_s : u"without its carriage return"_s;
}

QString joined(const QString &a, const QString &b)
{
    return a.isEmpty() || b.isEmpty() ? a + b : a + "; "_L1 + b;
}

/// The width of the paper of a print file of which nothing else is known.
int widthOf(QByteArrayView file, QTextCodec *codec)
{
    constexpr qsizetype LeastRule = 8; // or it is a text of its own
    qsizetype longest = DevicePaperWidth;
    for (qsizetype at = 0; at < file.size();) {
        const PrintLine line = lineAt(file, at, codec);
        at = line.next;
        if (line.kind != LineKind::Printed)
            continue;
        const auto rule = qsizetype(line.text.size() - line.text.find_first_not_of(U' '));
        if (rule >= LeastRule && tools::isRule(line.text, rule))
            return int(rule);
        longest = std::max(longest, tools::beyondEdge(line.text, 0));
    }
    return int(longest);
}

/// Draws the lines of a print file on paper.
class Paper
{
public:
    Paper(const Document &document, int columns, const std::function<bool(Row)> &take)
        : document(document)
        , columns(columns > 0 || !document.origins.empty()
                      ? columns
                      : widthOf(document.printFile, document.codec))
        , take(take)
    {
    }

    void draw()
    {
        for (qsizetype at = 0; at < document.printFile.size() && wanted;) {
            PrintLine line = lineAt(document.printFile, at, document.codec);
            const qsizetype offset = std::exchange(at, line.next);
            draw(std::move(line), offset);
        }
        tearOff();
    }

private:
    enum class Section { None, Torn, Listing, Fiscal };

    void draw(PrintLine line, qsizetype offset);
    void locate(qsizetype offset);
    void open(Section kind, const PrintLine &line);
    void close(Section kind, const PrintLine &line);
    void tearOff();
    void print(PrintLine line);
    void printFiscal(const PrintLine &line);
    void add(Row::Kind kind, const QString &mark, const QString &note, Cells text = {});

    const Document &document;
    const int columns; // 0: as the origins say
    const std::function<bool(Row)> &take;
    Section section = Section::None;
    int width = 0; // of the paper
    qint64 requestLine = 0;
    bool wanted = true;
};

/// An empty line opens a section: with the `j` after it, or alone where fiscal lines follow.
void Paper::draw(PrintLine line, qsizetype offset)
{
    const bool isBefore = line.kind == LineKind::Empty && line.next < document.printFile.size();
    const LineKind following =
        isBefore ? lineAt(document.printFile, line.next, document.codec).kind : LineKind::Empty;
    if (following == LineKind::SectionStart && line.end == LineEnd::LineFeed)
        return;
    const bool opensFiscal = following == LineKind::Fiscal || following == LineKind::FiscalEnd;
    if (opensFiscal || line.kind == LineKind::SectionStart)
        tearOff();
    locate(offset);
    if (opensFiscal || line.kind == LineKind::SectionStart)
        open(opensFiscal ? Section::Fiscal : Section::Listing, line);
    else if (line.kind == LineKind::SectionEnd || line.kind == LineKind::FiscalEnd)
        close(line.kind == LineKind::FiscalEnd ? Section::Fiscal : Section::Listing, line);
    else
        print(std::move(line));
}

/// Looks up what is known of the place in the file.
void Paper::locate(qsizetype offset)
{
    const auto origin = std::ranges::upper_bound(document.origins, offset, {}, &Origin::end);
    const bool isKnown = origin != document.origins.end();
    requestLine = isKnown ? origin->requestLine : 0;
    width = std::clamp(columns > 0 ? columns
                       : isKnown   ? origin->paperWidth
                                   : DevicePaperWidth,
                       1, MostPaperWidth);
}

void Paper::open(Section kind, const PrintLine &line)
{
    section = kind;
    const bool isFiscal = kind == Section::Fiscal;
    add(Row::Kind::TopEdge, isFiscal ? u""_s : u"j"_s,
        joined(isFiscal ? u"fiscal"_s : u""_s, faultOfEnd(line)));
}

void Paper::close(Section kind, const PrintLine &line)
{
    const Section closed = std::exchange(section, Section::None);
    if (closed == Section::None)
        add(Row::Kind::TornTop, {}, {});
    add(Row::Kind::BottomEdge, kind == Section::Listing ? u"J"_s : u"1T"_s,
        joined(closed == kind ? u""_s : u"closes what was not opened"_s, faultOfEnd(line)));
}

/// Ends the paper where a section is not closed.
void Paper::tearOff()
{
    requestLine = 0;
    const Section closed = std::exchange(section, Section::None);
    if (closed != Section::None)
        add(Row::Kind::TornBottom, {},
            closed == Section::Torn ? u""_s : u"the section is not closed"_s);
}

void Paper::print(PrintLine line)
{
    if (section == Section::None) {
        section = Section::Torn;
        add(Row::Kind::TornTop, {}, u"outside of a section"_s);
    }
    if (line.kind == LineKind::Fiscal)
        return printFiscal(line);
    const QString fault =
        joined(faultOf(line), line.kind == LineKind::Empty ? QString() : faultOfEnd(line));
    Cells text = std::move(line.text);
    while (text.size() > size_t(width) && text.back() == U' ')
        text.pop_back();
    add(Row::Kind::Line, fault.isEmpty() ? u""_s : u"!"_s, fault, std::move(text));
}

void Paper::printFiscal(const PrintLine &line)
{
    FiscalReceipt receipt = fiscalReceipt(line.text, width);
    QString mark = receipt.fault.isEmpty() ? u""_s : u"!"_s;
    QString note = joined(joined(escaped(line.text), receipt.fault), faultOfEnd(line));
    for (Cells &text : receipt.lines)
        add(Row::Kind::Line, std::exchange(mark, {}), std::exchange(note, {}), std::move(text));
}

void Paper::add(Row::Kind kind, const QString &mark, const QString &note, Cells text)
{
    wanted = wanted && take({kind, mark, std::move(text), width, note, requestLine});
}

} // namespace

void drawRows(const Document &document, int columns, const std::function<bool(Row)> &take)
{
    Paper(document, columns, take).draw();
}

std::vector<Row> rowsOf(const Document &document, int columns, size_t most)
{
    std::vector<Row> rows;
    drawRows(document, columns, [&](Row row) {
        rows.push_back(std::move(row));
        return rows.size() < most;
    });
    return rows;
}

std::vector<RowPair> comparedRows(const std::vector<Row> &before, const std::vector<Row> &after)
{
    const size_t rows = std::min(before.size(), MostRows);
    const size_t columns = std::min(after.size(), MostRows);
    // The lengths of the longest common subsequences of the rows from (i, j) to the ends.
    std::vector<quint16> lengths((rows + 1) * (columns + 1));
    const auto at = [&](size_t i, size_t j) -> quint16 & { return lengths[i * (columns + 1) + j]; };
    for (size_t i = rows; i-- > 0;) {
        for (size_t j = columns; j-- > 0;)
            at(i, j) = before[i].isSameAs(after[j]) ? quint16(at(i + 1, j + 1) + 1)
                                                    : std::max(at(i + 1, j), at(i, j + 1));
    }
    std::vector<RowPair> pairs;
    ptrdiff_t coming = 0; // pairs at the end that only the second sheet has: what goes stands first
    for (size_t i = 0, j = 0; i < rows || j < columns;) {
        if (i < rows && j < columns && before[i].isSameAs(after[j])) {
            pairs.push_back({qsizetype(i++), qsizetype(j++)});
            coming = 0;
        } else if (j == columns || (i < rows && at(i + 1, j) >= at(i, j + 1))) {
            pairs.insert(pairs.end() - coming, {qsizetype(i++), -1});
        } else {
            pairs.push_back({-1, qsizetype(j++)});
            ++coming;
        }
    }
    return pairs;
}

void markChanges(Sheet &before, Sheet &after)
{
    before.changed.assign(before.rows.size(), false);
    after.changed.assign(after.rows.size(), false);
    for (const RowPair &pair : comparedRows(before.rows, after.rows)) {
        if (pair.after < 0)
            before.changed[size_t(pair.before)] = true;
        else if (pair.before < 0)
            after.changed[size_t(pair.after)] = true;
    }
}

} // namespace preview

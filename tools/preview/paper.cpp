// SPDX-License-Identifier: MIT
#include "tools/preview/paper.h"

#include <algorithm>
#include <span>
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
        , columns(columns)
        , take(take)
    {
        if (columns == 0 && document.origins.empty())
            this->columns = widthOf(document.printFile, document.codec);
    }

    void draw()
    {
        while (next < document.printFile.size() && wanted) {
            offset = next;
            PrintLine line = lineAt(document.printFile, offset, document.codec);
            next = line.next;
            draw(std::move(line));
        }
        tearOff();
    }

private:
    enum class Section { None, Listing, Fiscal };

    void draw(PrintLine line);
    void drawEmpty(PrintLine line);
    void open(Section kind, const PrintLine &line);
    void close(Section kind, const PrintLine &line);
    void tearOff();
    void print(PrintLine line);
    void printFiscal(const PrintLine &line);
    void beginOutside();
    Row row(Row::Kind kind);
    void add(Row row) { wanted = wanted && take(std::move(row)); }

    const Document &document;
    int columns; // 0: as the origins say
    const std::function<bool(Row)> &take;
    qsizetype offset = 0; // of the line that is drawn
    qsizetype next = 0;
    Section section = Section::None;
    int lastWidth = 0; // of the row before
    bool torn = false; // paper is open, without a section
    bool wanted = true;
};

void Paper::draw(PrintLine line)
{
    switch (line.kind) {
    case LineKind::Empty:
        return drawEmpty(std::move(line));
    case LineKind::SectionStart:
        return open(Section::Listing, line);
    case LineKind::SectionEnd:
        return close(Section::Listing, line);
    case LineKind::FiscalEnd:
        return close(Section::Fiscal, line);
    case LineKind::Fiscal:
        return printFiscal(line);
    case LineKind::Printed:
    case LineKind::Unframed:
        return print(std::move(line));
    }
}

/// An empty line opens a section: with the `j` after it, or alone where fiscal lines follow.
void Paper::drawEmpty(PrintLine line)
{
    const LineKind following = next < document.printFile.size()
                                   ? lineAt(document.printFile, next, document.codec).kind
                                   : LineKind::Empty;
    if (following == LineKind::SectionStart && line.end == LineEnd::LineFeed)
        return;
    if (following == LineKind::Fiscal || following == LineKind::FiscalEnd)
        open(Section::Fiscal, line);
    else
        print(std::move(line));
}

void Paper::open(Section kind, const PrintLine &line)
{
    tearOff();
    section = kind;
    Row top = row(Row::Kind::TopEdge);
    top.mark = kind == Section::Listing ? u"j"_s : QString();
    top.note = joined(kind == Section::Fiscal ? u"fiscal"_s : QString(), faultOfEnd(line));
    add(std::move(top));
}

void Paper::close(Section kind, const PrintLine &line)
{
    const bool matches = section == kind;
    if (section == Section::None && !torn)
        add(row(Row::Kind::TornTop));
    section = Section::None;
    torn = false;
    Row bottom = row(Row::Kind::BottomEdge);
    bottom.mark = kind == Section::Listing ? u"J"_s : u"1T"_s;
    bottom.note = joined(matches ? QString() : u"closes what was not opened"_s, faultOfEnd(line));
    add(std::move(bottom));
}

/// Ends the paper where a section is not closed.
void Paper::tearOff()
{
    if (section == Section::None && !torn)
        return;
    Row bottom;
    bottom.kind = Row::Kind::TornBottom;
    bottom.width = lastWidth;
    bottom.note = section == Section::None ? QString() : u"the section is not closed"_s;
    section = Section::None;
    torn = false;
    add(std::move(bottom));
}

void Paper::print(PrintLine line)
{
    beginOutside();
    Row printed = row(Row::Kind::Line);
    printed.note =
        joined(faultOf(line), line.kind == LineKind::Empty ? QString() : faultOfEnd(line));
    printed.mark = printed.note.isEmpty() ? QString() : u"!"_s;
    printed.text = std::move(line.text);
    while (!printed.beyond().empty() && printed.text.back() == U' ')
        printed.text.pop_back();
    add(std::move(printed));
}

void Paper::printFiscal(const PrintLine &line)
{
    beginOutside();
    Row first = row(Row::Kind::Line);
    FiscalReceipt receipt = fiscalReceipt(line.text, first.width);
    first.text = std::move(receipt.lines.front());
    first.mark = receipt.fault.isEmpty() ? QString() : u"!"_s;
    first.note = joined(joined(escaped(line.text), receipt.fault), faultOfEnd(line));
    add(std::move(first));
    for (Cells &text : std::span(receipt.lines).subspan(1)) {
        Row further = row(Row::Kind::Line);
        further.text = std::move(text);
        add(std::move(further));
    }
}

void Paper::beginOutside()
{
    if (section != Section::None || std::exchange(torn, true))
        return;
    Row top = row(Row::Kind::TornTop);
    top.note = u"outside of a section"_s;
    add(std::move(top));
}

Row Paper::row(Row::Kind kind)
{
    Row row;
    row.kind = kind;
    const auto origin = std::ranges::upper_bound(document.origins, offset, {}, &Origin::end);
    const bool isKnown = origin != document.origins.end();
    row.requestLine = isKnown ? origin->requestLine : 0;
    row.width = columns > 0 ? columns : isKnown ? origin->paperWidth : DevicePaperWidth;
    row.width = std::clamp(row.width, 1, MostPaperWidth);
    lastWidth = row.width;
    return row;
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

} // namespace preview

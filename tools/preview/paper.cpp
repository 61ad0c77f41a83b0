// SPDX-License-Identifier: MIT
#include "tools/preview/paper.h"

#include "tools/preview/fiscalline.h"

#include <QBuffer>

#include <algorithm>
#include <span>
#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

bool isFiscal(LineKind kind)
{
    return kind == LineKind::FiscalItem || kind == LineKind::FiscalDiscount
           || kind == LineKind::FiscalPayment;
}

/// What is wrong with a line that the device does not write.
QString faultOf(const PrintLine &line)
{
    if (line.kind == LineKind::Piece)
        return u"part of a line of more than 4,096 bytes"_s;
    if (line.kind == LineKind::Empty)
        return u"empty line"_s;
    if (line.kind != LineKind::Unframed)
        return {};
    if (line.text.ends_with(U"\"@"))
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
    if (hasReturn == isFiscal(line.kind) || line.kind == LineKind::Piece)
        return {};
    return hasReturn ? u"ends with a carriage return"_s : u"without its carriage return"_s;
}

QString joined(const QString &a, const QString &b)
{
    return a.isEmpty() || b.isEmpty() ? a + b : a + "; "_L1 + b;
}

} // namespace

std::optional<int> widthOfRule(QIODevice &printFile, QTextCodec *codec)
{
    constexpr int MostBytes = 64 * 1'024;
    constexpr size_t LeastWidth = 8; // or it is a text of its own
    QByteArray begin = printFile.peek(MostBytes);
    QBuffer buffer(&begin);
    buffer.open(QIODevice::ReadOnly);
    PrintFile lines(buffer, codec);
    while (const auto line = lines.next()) {
        const CellsView text = line->text;
        const CellsView rule = text.substr(std::min(text.find_first_not_of(U' '), text.size()));
        if (line->kind == LineKind::Printed && rule.size() >= LeastWidth
            && rule.find_first_not_of(U'=') == CellsView::npos)
            return int(rule.size());
    }
    return std::nullopt;
}

Paper::Paper(QIODevice &printFile, QTextCodec *codec, const Trace &trace, int width)
    : file(printFile, codec)
    , trace(trace)
    , givenWidth(width)
    , otherWidth(widthOfRule(printFile, codec).value_or(DevicePaperWidth))
    , ahead(file.next())
{
}

std::optional<Row> Paper::next()
{
    while (rows.empty() && ahead) {
        const PrintLine line = *std::exchange(ahead, file.next());
        take(line);
        if (!ahead)
            tearOff();
    }
    if (rows.empty())
        return std::nullopt;
    Row row = std::move(rows.front());
    rows.pop_front();
    return row;
}

void Paper::take(const PrintLine &line)
{
    switch (line.kind) {
    case LineKind::Empty:
        return takeEmpty(line);
    case LineKind::SectionStart:
        return open(Section::Listing, line);
    case LineKind::SectionEnd:
        return close(Section::Listing, line);
    case LineKind::FiscalEnd:
        return close(Section::Fiscal, line);
    case LineKind::FiscalItem:
    case LineKind::FiscalDiscount:
    case LineKind::FiscalPayment:
        return printFiscal(line);
    case LineKind::Printed:
    case LineKind::Unframed:
    case LineKind::Piece:
        break;
    }
    print(line, faultOf(line));
}

/// An empty line opens a section: with the `j` after it, or alone where fiscal lines follow.
void Paper::takeEmpty(const PrintLine &line)
{
    const LineKind following = ahead ? ahead->kind : LineKind::Empty;
    if (following == LineKind::SectionStart && line.end == LineEnd::LineFeed)
        return;
    if (isFiscal(following) || following == LineKind::FiscalEnd)
        open(Section::Fiscal, line);
    else
        print(line, faultOf(line));
}

void Paper::open(Section kind, const PrintLine &line)
{
    tearOff();
    section = kind;
    Row &row = add(Row::Kind::TopEdge, line);
    row.mark = kind == Section::Listing ? u"j"_s : QString();
    row.note = joined(kind == Section::Fiscal ? u"fiscal"_s : QString(), faultOfEnd(line));
}

void Paper::close(Section kind, const PrintLine &line)
{
    const bool matches = section == kind;
    if (section == Section::None && !torn)
        add(Row::Kind::TornTop, line);
    section = Section::None;
    torn = false;
    Row &row = add(Row::Kind::BottomEdge, line);
    row.mark = kind == Section::Listing ? u"J"_s : u"1T"_s;
    row.note = joined(matches ? QString() : u"closes what was not opened"_s, faultOfEnd(line));
}

/// Ends the paper where a section is not closed.
void Paper::tearOff()
{
    if (section == Section::None && !torn)
        return;
    Row row;
    row.kind = Row::Kind::TornBottom;
    row.width = lastWidth;
    row.note = section == Section::None ? QString() : u"the section is not closed"_s;
    rows.push_back(row);
    section = Section::None;
    torn = false;
}

void Paper::print(const PrintLine &line, const QString &note)
{
    if (section == Section::None && !std::exchange(torn, true))
        add(Row::Kind::TornTop, line).note = u"outside of a section"_s;
    Row &row = add(Row::Kind::Line, line);
    row.text = line.text;
    row.note = joined(note, line.kind == LineKind::Empty ? QString() : faultOfEnd(line));
    row.mark = row.note.isEmpty() ? QString() : u"!"_s;
}

void Paper::printFiscal(const PrintLine &line)
{
    const QString command = escaped(line.text);
    if (section == Section::None && !std::exchange(torn, true))
        add(Row::Kind::TornTop, line).note = u"outside of a section"_s;
    Row &first = add(Row::Kind::Line, line);
    const std::vector<Cells> lines = receiptLines(line.text, first.width);
    first.text = lines.front();
    first.note = joined(command, faultOfEnd(line));
    for (const Cells &text : std::span(lines).subspan(1))
        add(Row::Kind::Line, line).text = text;
}

Row &Paper::add(Row::Kind kind, const PrintLine &line)
{
    Row row;
    row.kind = kind;
    row.width = givenWidth > 0 ? givenWidth : trace.paperWidthAt(line.offset).value_or(otherWidth);
    row.width = std::clamp(row.width, 1, MostPaperWidth);
    row.requestLine = trace.requestLineAt(line.offset);
    lastWidth = row.width;
    return rows.emplace_back(std::move(row));
}

} // namespace preview

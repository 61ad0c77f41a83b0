// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// The cells as a terminal takes them: numbers for what does not fill one column.
QString escaped(CellsView cells)
{
    QString text;
    for (const char32_t c : cells)
        text += fillsOneColumn(c) ? textOf({&c, 1}) : numberOf(c);
    return text;
}

QString faultOfEnd(const PrintLine &line)
{
    if (line.end == LineEnd::Missing)
        return Finding::tr("without its line end");
    const bool hasReturn = line.end == LineEnd::CarriageReturn;
    if (hasReturn == (line.kind == LineKind::Fiscal))
        return {};
    return hasReturn ? Finding::tr("ends with a carriage return")
                     : Finding::tr("without its carriage return");
}

/// The lines of a receipt, the right at the edge: two where it has no room behind the left.
std::vector<Cells> laidOut(const std::vector<std::pair<Cells, Cells>> &receipt, int width)
{
    const size_t room = size_t(width);
    std::vector<Cells> lines;
    for (auto [left, right] : receipt) {
        if (left.size() + 1 + right.size() > room)
            lines.push_back(std::exchange(left, {}));
        left.append(room - std::min(room, left.size() + right.size()), U' ');
        lines.push_back(left + right);
    }
    return lines;
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
        if (rule >= LeastRule && isRule(line.text, rule))
            return int(rule);
        longest = std::max(longest, beyondEdge(line.text, 0));
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

    /// An empty line opens a section: with the `j` after it, or alone where fiscal lines follow.
    void draw(PrintLine line, qsizetype offset)
    {
        using enum LineKind;
        const bool isBefore = line.kind == Empty && line.next < document.printFile.size();
        const LineKind following =
            isBefore ? lineAt(document.printFile, line.next, document.codec).kind : Empty;
        if (following == SectionStart && line.end == LineEnd::LineFeed)
            return;
        const bool opensFiscal = following == Fiscal || following == FiscalEnd;
        const bool opens = opensFiscal || line.kind == SectionStart;
        if (opens)
            tearOff();
        // What is known of the place in the file:
        const auto origin = std::ranges::upper_bound(document.origins, offset, {}, &Origin::end);
        const bool isKnown = origin != document.origins.end();
        requestLine = isKnown ? origin->requestLine : 0;
        width = std::clamp(columns > 0 ? columns
                           : isKnown   ? origin->paperWidth
                                       : DevicePaperWidth,
                           1, MostPaperWidth);
        if (opens) {
            section = opensFiscal ? Section::Fiscal : Section::Listing;
            add(Row::Kind::TopEdge, opensFiscal ? u""_s : u"j"_s,
                joined({opensFiscal ? Finding::tr("fiscal") : QString(), faultOfEnd(line)}));
            return;
        }
        if (line.kind != SectionEnd && line.kind != FiscalEnd)
            return print(line);
        const auto opened = line.kind == FiscalEnd ? Section::Fiscal : Section::Listing;
        const Section closed = std::exchange(section, Section::None);
        if (closed == Section::None)
            add(Row::Kind::TornTop, {}, {});
        add(Row::Kind::BottomEdge, line.kind == FiscalEnd ? u"1T"_s : u"J"_s,
            joined({closed == opened ? QString() : Finding::tr("closes what was not opened"),
                    faultOfEnd(line)}));
    }

    /// Ends the paper where a section is not closed.
    void tearOff()
    {
        requestLine = 0;
        const Section closed = std::exchange(section, Section::None);
        if (closed != Section::None)
            add(Row::Kind::TornBottom, {},
                closed == Section::Torn ? QString() : Finding::tr("the section is not closed"));
    }

    void print(PrintLine &line)
    {
        if (section == Section::None) {
            section = Section::Torn;
            add(Row::Kind::TornTop, {}, Finding::tr("outside of a section"));
        }
        const bool isFiscal = line.kind == LineKind::Fiscal;
        QString note = joined({isFiscal ? escaped(line.text) : QString(), line.fault,
                               line.kind == LineKind::Empty ? QString() : faultOfEnd(line)});
        QString mark = (isFiscal ? line.fault : note).isEmpty() ? u""_s : u"!"_s;
        while (line.text.size() > size_t(width) && line.text.back() == U' ')
            line.text.pop_back();
        for (Cells &text : isFiscal ? laidOut(line.receipt, width) : std::vector{line.text})
            add(Row::Kind::Line, std::exchange(mark, {}), std::exchange(note, {}), std::move(text));
    }

    void add(Row::Kind kind, const QString &mark, const QString &note, Cells text = {})
    {
        wanted = wanted && take({kind, mark, std::move(text), width, note, requestLine});
    }

    const Document &document;
    const int columns; // 0: as the origins say
    const std::function<bool(Row)> &take;
    Section section = Section::None;
    int width = 0; // of the paper
    qint64 requestLine = 0;
    bool wanted = true;
};

} // namespace

QString joined(QStringList notes)
{
    notes.removeAll(QString());
    return notes.join("; "_L1);
}

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

void markChanges(std::vector<Row> &before, std::vector<Row> &after)
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
    for (size_t i = 0, j = 0; i < rows || j < columns;) {
        if (i < rows && j < columns && before[i].isSameAs(after[j]))
            before[i++].isChanged = after[j++].isChanged = false;
        else if (j == columns || (i < rows && at(i + 1, j) >= at(i, j + 1)))
            before[i++].isChanged = true;
        else
            after[j++].isChanged = true;
    }
}

} // namespace preview

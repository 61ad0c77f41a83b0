// SPDX-License-Identifier: MIT
#include "tools/preview/preview.h"

#include <QTextCodec>

#include <span>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// A row of a difference: `-` or `+` where only one document has it, else a blank.
struct SignedRow
{
    QChar sign;
    const Row *row;
};

/// `begin,count` of one document's rows in a hunk, counted from 1; it lacks those of a sign.
QString rangeOf(std::span<const SignedRow> above, std::span<const SignedRow> hunk, QChar lacks)
{
    const auto has = [lacks](const SignedRow &row) { return row.sign != lacks; };
    const auto count = std::ranges::count_if(hunk, has);
    return u"%1,%2"_s.arg(std::ranges::count_if(above, has) + (count > 0 ? 1 : 0)).arg(count);
}

/// Between what both have, first all that goes, then all that comes.
std::vector<SignedRow> signedRows(const std::vector<Row> &before, const std::vector<Row> &after)
{
    std::vector<SignedRow> rows;
    const size_t most = std::min(before.size(), MostRows);
    for (size_t i = 0, j = 0; i < most || j < std::min(after.size(), MostRows);) {
        if (i < most && before[i].isChanged)
            rows.push_back({u'-', &before[i++]});
        else if (i == most || after[j].isChanged)
            rows.push_back({u'+', &after[j++]});
        else {
            rows.push_back({u' ', &before[i++]});
            ++j;
        }
    }
    return rows;
}

QString coloured(const QString &line)
{
    const QLatin1StringView colour = line.startsWith(u'-')   ? "\x1b[31m"_L1 // red
                                     : line.startsWith(u'+') ? "\x1b[32m"_L1 // green
                                     : line.startsWith(u'@') ? "\x1b[36m"_L1 // cyan
                                                             : ""_L1;
    return colour.isEmpty() ? line : colour + line + "\x1b[0m"_L1;
}

} // namespace

TerminalDrawing::TerminalDrawing(QTextCodec *codec, qint64 lastRequestLine)
    : codec(codec)
    , frames(!codec || codec->canEncode(u"┌─┐│└┘┄←"_s))
    , numberWidth(lastRequestLine > 0 ? QString::number(lastRequestLine).size() + 1 : 0)
{
}

QString TerminalDrawing::drawn(const Row &row) const
{
    // By Row::Kind: the left end, the middle and the right end, in frames and in ASCII.
    constexpr std::array<std::array<QStringView, 2>, 5> rows = {{
        {u"┌─┐", u"+-+"},
        {u"┄┄┄", u"~~~"},
        {u"│ │", u"| |"},
        {u"└─┘", u"+-+"},
        {u"┄┄┄", u"~~~"},
    }};
    constexpr qsizetype MarkWidth = 3; // the longest is `1T`
    const QStringView signs = rows[size_t(row.kind)][frames ? 0 : 1];
    QString line = row.mark.leftJustified(MarkWidth) + signs[0] + drawnCells(row.onPaper())
                   + QString(row.width - qsizetype(row.onPaper().size()), signs[1]) + signs[2]
                   + drawnCells(row.beyond());
    if (numberWidth > 0)
        line.prepend((row.requestLine > 0 ? QString::number(row.requestLine) : QString())
                         .rightJustified(numberWidth - 1)
                     + u' ');
    if (const QString notes = notesOn(row); !notes.isEmpty())
        line += "  "_L1 + notes;
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

bool TerminalDrawing::isShown(char32_t c) const
{
    return fillsOneColumn(c) && (!codec || c < 0x80 || codec->canEncode(QString::fromUcs4(&c, 1)));
}

QString TerminalDrawing::drawnCells(CellsView cells) const
{
    QString text;
    text.reserve(qsizetype(cells.size()));
    for (const char32_t c : cells) {
        if (isShown(c))
            text += QChar::fromUcs4(c);
        else if (!frames)
            text += u'?';
        else
            text += fillsOneColumn(drawable(c)) ? QChar(char16_t(drawable(c))) : QChar(0xFFFD);
    }
    return text;
}

QString TerminalDrawing::notesOn(const Row &row) const
{
    constexpr qsizetype MostNumbers = 8;
    QStringList numbers;
    qsizetype more = 0;
    for (const char32_t c : row.text) {
        if (isShown(c))
            continue;
        if (numbers.size() < MostNumbers)
            numbers.append(numberOf(c));
        else
            ++more;
    }
    if (more > 0)
        numbers.append(u"and %1 more"_s.arg(more));
    const QString overrun = frames ? u"← %1 beyond the edge"_s : u"<- %1 beyond the edge"_s;
    return joined(
        {row.overrun() > 0 ? overrun.arg(row.overrun()) : QString(), row.note, numbers.join(u' ')});
}

QString unifiedDifference(const std::vector<Row> &before, const std::vector<Row> &after,
                          const TerminalDrawing &drawing, bool inColours)
{
    constexpr size_t Context = 3;
    const std::vector<SignedRow> rows = signedRows(before, after);
    std::vector<bool> isShown(rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        const size_t last = std::min(rows.size(), i + Context + 1);
        for (size_t j = i - std::min(i, Context); j < last && rows[i].row->isChanged; ++j)
            isShown[j] = true;
    }
    QString text;
    const auto addLine = [&](const QString &line) {
        text += (inColours ? coloured(line) : line) + u'\n';
    };
    for (auto end = isShown.begin();;) {
        const auto begin = std::find(end, isShown.end(), true);
        if (begin == isShown.end())
            return text;
        end = std::find(begin, isShown.end(), false);
        const auto above = std::span(rows).first(size_t(begin - isShown.begin()));
        const auto hunk = std::span(rows).subspan(above.size(), size_t(end - begin));
        addLine(u"@@ -%1 +%2 @@"_s.arg(rangeOf(above, hunk, u'+'), rangeOf(above, hunk, u'-')));
        for (const auto &[sign, row] : hunk)
            addLine(sign + drawing.drawn(*row));
    }
}

} // namespace preview

// SPDX-License-Identifier: MIT
#include "tools/preview/terminaldrawing.h"

#include <QStringList>
#include <QTextCodec>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MarkWidth = 3; // the longest is `1T`

QString withoutTrailingBlanks(QString text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
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
    QString number;
    if (numberWidth > 0) {
        number = row.requestLine > 0 ? QString::number(row.requestLine) : QString();
        number = number.rightJustified(numberWidth - 1) + u' ';
    }
    const QString notes = notesOn(row);
    return withoutTrailingBlanks(number + row.mark.leftJustified(MarkWidth) + paperOf(row)
                                 + (notes.isEmpty() ? QString() : "  "_L1 + notes));
}

QString TerminalDrawing::paperOf(const Row &row) const
{
    const auto edge = [&](QStringView signs) { // the left end, the middle and the right end
        return signs[0] + QString(row.width, signs[1]) + signs[2];
    };
    switch (row.kind) {
    case Row::Kind::TopEdge:
        return edge(frames ? u"┌─┐" : u"+-+");
    case Row::Kind::BottomEdge:
        return edge(frames ? u"└─┘" : u"+-+");
    case Row::Kind::TornTop:
    case Row::Kind::TornBottom:
        return edge(frames ? u"┄┄┄" : u"~~~");
    case Row::Kind::Line:
        break;
    }
    const QChar upright = frames ? u'│' : u'|';
    const QString blanks(row.width - qsizetype(row.onPaper().size()), u' ');
    return upright + cellsOf(row.onPaper()) + blanks + upright + cellsOf(row.beyond());
}

bool TerminalDrawing::isShown(char32_t c) const
{
    return fillsOneColumn(c) && (!codec || c < 0x80 || codec->canEncode(QString::fromUcs4(&c, 1)));
}

QString TerminalDrawing::cellsOf(CellsView cells) const
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
    QStringList notes;
    if (row.overrun() > 0)
        notes.append((frames ? u"← "_s : u"<- "_s) + QString::number(row.overrun())
                     + " beyond the edge"_L1);
    if (!row.note.isEmpty())
        notes.append(row.note);
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
        numbers.append("and "_L1 + QString::number(more) + " more"_L1);
    if (!numbers.isEmpty())
        notes.append(numbers.join(u' '));
    return notes.join("; "_L1);
}

} // namespace preview

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVarLengthArray>

/// The helpers that every column of a document is made with. Widths are in characters (units of
/// the toolkit's string); a width that the text has or exceeds leaves the text whole, and none pads
/// a text to more than MaxPaddedWidth.
namespace rowlayout {

/// What exceeds it is a typing error in the configuration, and must not cost memory or paper.
constexpr qint64 MaxPaddedWidth = 65'535;

/// Appends `count` copies of `fill`, none for a negative count and at most MaxPaddedWidth.
template <typename Characters>
void pad(Characters &line, qint64 count, QChar fill)
{
    if (count > 0)
        line.resize(line.size() + qMin(count, MaxPaddedWidth), fill);
}

/// The first `width` characters of `text`, one fewer where the cut would halve a surrogate pair;
/// all of them when `width` is negative.
inline QStringView cut(QStringView text, qint64 width)
{
    if (width < 0 || text.size() <= width)
        return text;
    const bool halvesPair =
        width > 0 && text[width - 1].isHighSurrogate() && text[width].isLowSurrogate();
    return text.first(halvesPair ? width - 1 : width);
}

/// A line that grows column by column. What pads is not compiled in place: in every layout it would
/// make the program a fifth larger.
class Line
{
public:
    Line &text(QStringView text)
    {
        line.append(text.data(), text.size());
        return *this;
    }
    /// A column aligned to the right: padded, never cut.
    [[gnu::noinline]] Line &right(QStringView text, qint64 width, QChar fill)
    {
        pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
        return this->text(text);
    }
    /// A column aligned to the left: padded, never cut.
    [[gnu::noinline]] Line &left(QStringView text, qint64 width, QChar fill)
    {
        this->text(text);
        pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
        return *this;
    }
    /// A column exactly `width` wide: padded and cut. A negative width, which columns wider than
    /// the paper leave, neither pads nor cuts: nothing the customer pays for is lost to a bad
    /// setting.
    Line &exact(QStringView text, qint64 width, QChar fill)
    {
        return left(cut(text, width), width, fill);
    }

    QString toString() const { return QString(line.constData(), line.size()); }

private:
    // Not a string: its memory is there, and its operations are compiled in place.
    QVarLengthArray<QChar, 256> line;
};

} // namespace rowlayout

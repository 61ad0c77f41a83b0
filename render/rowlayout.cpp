// SPDX-License-Identifier: MIT
#include "render/rowlayout.h"

namespace rowlayout {

QStringView cut(QStringView text, qint64 width)
{
    if (width < 0 || text.size() <= width)
        return text;
    const bool halvesPair =
        width > 0 && text[width - 1].isHighSurrogate() && text[width].isLowSurrogate();
    return text.first(halvesPair ? width - 1 : width);
}

Line &Line::text(QStringView text)
{
    line.append(text.data(), text.size());
    return *this;
}

Line &Line::right(QStringView text, qint64 width, QChar fill)
{
    pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
    return this->text(text);
}

Line &Line::left(QStringView text, qint64 width, QChar fill)
{
    this->text(text);
    pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
    return *this;
}

Line &Line::exact(QStringView text, qint64 width, QChar fill)
{
    return left(cut(text, width), width, fill);
}

} // namespace rowlayout

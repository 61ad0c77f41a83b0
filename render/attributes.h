// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QXmlAttributes>

/// The value of the attribute `name`, the first where two bear it; empty text without one.
inline QString valueOf(const QXmlAttributes &atts, QLatin1StringView name)
{
    const int position = atts.index(name);
    return position < 0 ? QString() : atts.value(position);
}

/// The value of the attribute at `position`, from 0 in document order; empty text past the last.
inline QString valueAt(const QXmlAttributes &atts, int position)
{
    return position < atts.count() ? atts.value(position) : QString();
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

namespace tools {

/// The number of letters to insert, delete, change or swap with their neighbour to make one word of
/// the other; the case of letters counts nothing.
int editDistance(QStringView a, QStringView b);

/// The word nearest to `word`, the first of several; empty when none is near enough to be what was
/// meant (a third of its letters).
QString nearest(QStringView word, std::span<const QString> words);

/// ` (did you mean X?)` for the nearest word, or an empty text.
QString suggestion(QStringView word, std::span<const QString> words);

} // namespace tools

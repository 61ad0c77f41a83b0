// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

/// What the commands say to a person, in the encoding of the user's locale.
namespace tools {

/// Writes to standard output; Fine, or Trouble when it takes nothing (which is told once).
int printOut(const QString &text);
/// The same for bytes, which are written as they are.
int printBytes(const QByteArray &bytes);
/// Writes to standard error.
void printError(const QString &text);

/// The text in one line: line ends, tabs and other control characters as `\n`, `\t`, `\x1b`.
QString inOneLine(const QString &text);
/// The beginning of the text in one line, between backquotes; `…` stands for the rest.
QString excerpt(const QString &text);

/// The word nearest to `word`, the first of several; empty when none is near enough to be what was
/// meant (a third of its letters).
QString nearest(QStringView word, std::span<const QString> words);
/// ` (did you mean X?)`; empty for no word.
QString didYouMean(const QString &word);

} // namespace tools

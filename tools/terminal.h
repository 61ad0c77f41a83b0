// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMap>

#include <compare>
#include <span>
#include <vector>

/// What the commands say to a person, in the encoding of the user's locale, and the findings that a
/// checking command tells about a file.
namespace tools {

/// Writes to standard output; Fine. Where it takes nothing, the command ends with Trouble.
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

enum class Severity { Note, Warning, Error };

/// Line and column, counted from 1, the column in bytes; line 0 means nowhere.
struct Place
{
    qint64 line = 0;
    qint64 column = 0;

    auto
    operator<=>(const Place &) const = default; // NOLINT(modernize-use-nullptr): none is written
};

/// From a character to the place behind another; line 0 where that is not known.
struct Range
{
    Place begin;
    Place end;
};

struct Finding
{
    Severity severity;
    QLatin1StringView code; ///< a stable name for what was found, as "unknown-key"
    QString text;
    Range at{};             ///< what it is about
    qsizetype subject = -1; ///< likewise, as the checker counts its things; -1: the file
    QString suggestion{};   ///< what should stand there; empty where nobody knows

    /// For the texts about configurations, which the window shows in its own language.
    Q_DECLARE_TR_FUNCTIONS(Finding)
};

/// The most findings of a code that are listed.
constexpr int MostOfACode = 100;

/// Findings as they come: keeps the first hundred of a code and counts the others, so that any
/// number of them takes little memory.
class FindingStore
{
public:
    void add(Finding finding);
    /// Whether another finding of this code would only be counted.
    bool isFull(QLatin1StringView code) const { return counts.value(code) >= MostOfACode; }
    /// The findings in the order of their places; a last one of a code counts those left out. The
    /// store is empty then.
    std::vector<Finding> take();

private:
    std::vector<Finding> kept;
    QMap<QLatin1StringView, qint64> counts;
};

/// The findings in the order of their places, a hundred of a code at most, as a FindingStore has
/// them.
std::vector<Finding> abridged(std::vector<Finding> findings);

bool hasError(const std::vector<Finding> &findings);

/// `file:line:column: severity: text [code]`, a line each; the place is left away where there is
/// none.
QString findingLines(const QString &fileName, const std::vector<Finding> &findings);

/// The findings about one file of several.
struct FileFindings
{
    QString fileName;
    std::vector<Finding> findings;
};

/// A JSON array in UTF-8, whatever the locale, of objects with the members file, line, column,
/// severity, code and message, and where they are known endLine, endColumn and suggestion.
QByteArray findingsAsJson(const std::vector<FileFindings> &files);

} // namespace tools

// SPDX-License-Identifier: MIT
#include "tools/terminal.h"

#include "text/localeencoding.h"
#include "tools/command.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

/// The number of letters to insert, delete, change or swap with their neighbour to make one word of
/// the other; the case of letters counts nothing.
int editDistance(QStringView a, QStringView b)
{
    const auto width = b.size() + 1;
    std::vector<int> table(size_t((a.size() + 1) * width)); // of the beginnings of both words
    const auto at = [&](qsizetype i, qsizetype j) -> int & { return table[size_t(i * width + j)]; };
    const auto same = [&](qsizetype i, qsizetype j) {
        return a[i - 1].toLower() == b[j - 1].toLower();
    };
    for (qsizetype i = 0; i <= a.size(); ++i) {
        for (qsizetype j = 0; j <= b.size(); ++j) {
            at(i, j) = i == 0 || j == 0 ? int(i + j)
                                        : std::min({at(i - 1, j) + 1, at(i, j - 1) + 1,
                                                    at(i - 1, j - 1) + (same(i, j) ? 0 : 1)});
            if (i > 1 && j > 1 && same(i, j - 1) && same(i - 1, j))
                at(i, j) = std::min(at(i, j), at(i - 2, j - 2) + 1);
        }
    }
    return table.back();
}

void sortByPlace(std::vector<Finding> &findings)
{
    std::ranges::stable_sort(findings, {}, [](const Finding &finding) { return finding.at.begin; });
}

/// The word for a severity, as messages bear it.
QLatin1StringView severityName(Severity severity)
{
    return std::array{"note"_L1, "warning"_L1, "error"_L1}[size_t(severity)];
}

} // namespace

int printOut(const QString &text) { return printBytes(text::toLocale(text)); }

int printBytes(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return Fine;
    printError(u"zentaro: standard output could not be written\n"_s);
    throw Ended{};
}

void printError(const QString &text) { std::fputs(text::toLocale(text).constData(), stderr); }

QString inOneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\n')
            line += "\\n"_L1;
        else if (c == u'\t')
            line += "\\t"_L1;
        else if (c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() < 0xa0))
            line += "\\x"_L1 + QString::number(c.unicode(), 16).rightJustified(2, u'0');
        else
            line += c;
    }
    return line;
}

QString excerpt(const QString &text)
{
    constexpr qsizetype Most = 40; // characters
    const QString line = inOneLine(text.first(qMin(text.size(), Most + 1)));
    return u'`' + (text.size() > Most ? line.first(Most) + u'…' : line) + u'`';
}

QString nearest(QStringView word, std::span<const QString> words)
{
    constexpr qsizetype Longest = 64; // no key word comes near; keeps a huge name cheap
    if (word.size() > Longest)
        return {};
    QString found;
    qsizetype least =
        qMax(qsizetype(1), word.size() / 3) + 1; // the fewest changes that are too many
    for (const QString &other : words) {
        if (qAbs(other.size() - word.size()) >= least)
            continue; // that many letters to insert or delete at least
        if (const int distance = editDistance(word, other); distance < least) {
            least = distance;
            found = other;
        }
    }
    return found;
}

QString didYouMean(const QString &word)
{
    return word.isEmpty()
               ? word
               : QCoreApplication::translate("Finding", " (did you mean `%1`?)").arg(word);
}

void FindingStore::add(Finding finding)
{
    if (++counts[finding.code] <= MostOfACode)
        kept.push_back(std::move(finding));
}

std::vector<Finding> FindingStore::take()
{
    sortByPlace(kept);
    for (const auto &[code, count] : std::exchange(counts, {}).toStdMap()) {
        if (count > MostOfACode)
            kept.push_back(
                {Severity::Note, code, Finding::tr("%1 more like this").arg(count - MostOfACode)});
    }
    return std::exchange(kept, {});
}

std::vector<Finding> abridged(std::vector<Finding> findings)
{
    sortByPlace(findings);
    FindingStore store;
    for (Finding &finding : findings)
        store.add(std::move(finding));
    return store.take();
}

bool hasError(const std::vector<Finding> &findings)
{
    return std::ranges::find(findings, Severity::Error, &Finding::severity) != findings.end();
}

QString findingLines(const QString &fileName, const std::vector<Finding> &findings)
{
    QString lines;
    for (const auto &[severity, code, text, at, subject, suggestion] : findings) {
        lines += inOneLine(fileName) + u':';
        if (at.begin.line > 0)
            lines += u"%1:%2:"_s.arg(at.begin.line).arg(at.begin.column);
        lines += u' ' + severityName(severity) + ": "_L1 + text + " ["_L1 + code + "]\n"_L1;
    }
    return lines;
}

QByteArray findingsAsJson(const std::vector<FileFindings> &files)
{
    QJsonArray array;
    for (const auto &[fileName, findings] : files) {
        for (const auto &[severity, code, text, at, subject, suggestion] : findings) {
            QJsonObject object{{u"file"_s, fileName},
                               {u"line"_s, at.begin.line},
                               {u"column"_s, at.begin.column},
                               {u"severity"_s, severityName(severity)},
                               {u"code"_s, code},
                               {u"message"_s, text}};
            if (at.end.line > 0) {
                object.insert(u"endLine"_s, at.end.line);
                object.insert(u"endColumn"_s, at.end.column);
            }
            if (!suggestion.isEmpty())
                object.insert(u"suggestion"_s, suggestion);
            array.append(object);
        }
    }
    return QJsonDocument(array).toJson();
}

} // namespace tools

// SPDX-License-Identifier: MIT
#include "tools/terminal.h"

#include "text/localeencoding.h"
#include "tools/command.h"

#include <algorithm>
#include <cstdio>
#include <vector>

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

} // namespace

int printOut(const QString &text) { return printBytes(text::toLocale(text)); }

int printBytes(const QByteArray &bytes)
{
    if (std::ferror(stdout) != 0)
        return Trouble; // told before
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return Fine;
    printError(u"zentaro: standard output could not be written\n"_s);
    return Trouble;
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
    return u'`' + (text.size() > Most ? line.first(qMin(line.size(), Most)) + u'…' : line) + u'`';
}

QString nearest(QStringView word, std::span<const QString> words)
{
    constexpr qsizetype Longest = 64; // no key word comes near; keeps a huge name cheap
    if (word.size() > Longest)
        return {};
    const qsizetype farthest = qMax(qsizetype(1), word.size() / 3);
    const QString *found = nullptr;
    qsizetype least = farthest + 1;
    for (const QString &other : words) {
        if (qAbs(other.size() - word.size()) >= least)
            continue; // that many letters to insert or delete at least
        if (const int distance = editDistance(word, other); distance < least) {
            least = distance;
            found = &other;
        }
    }
    return found ? *found : QString();
}

QString didYouMean(const QString &word)
{
    return word.isEmpty()
               ? word
               : QCoreApplication::translate("Finding", " (did you mean `%1`?)").arg(word);
}

} // namespace tools

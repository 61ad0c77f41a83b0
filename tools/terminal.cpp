// SPDX-License-Identifier: MIT
#include "tools/terminal.h"

#include "text/localeencoding.h"
#include "tools/command.h"

#include <cstdio>
#include <unistd.h>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

bool write(const QByteArray &bytes, std::FILE *file)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), file);
    return std::fflush(file) == 0 && std::ferror(file) == 0;
}

} // namespace

int printOut(const QString &text) { return printBytes(text::toLocale(text)); }

int printBytes(const QByteArray &bytes)
{
    if (std::ferror(stdout) != 0)
        return Trouble; // told before
    if (write(bytes, stdout))
        return Fine;
    printError(u"zentaro: standard output could not be written\n"_s);
    return Trouble;
}

void printError(const QString &text) { write(text::toLocale(text), stderr); }

bool canAsk() { return isatty(STDIN_FILENO) != 0; }

bool confirmed(const QString &question)
{
    printError(question + " [y/N] "_L1);
    const int answer = std::getchar();
    for (int rest = answer; rest != '\n' && rest != EOF;)
        rest = std::getchar();
    return answer == 'y' || answer == 'Y';
}

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

} // namespace tools

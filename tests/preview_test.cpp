// SPDX-License-Identifier: MIT
#include "tests/support.h"
#include "tools/preview/preview.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using preview::Cells;
using preview::LineKind;
using support::Home;
using support::Outcome;
using support::sourceDir;
using support::zentaro;

namespace {

QByteArray configuration(const QString &columns)
{
    return support::readFile(sourceDir() + u"/samples/zentaro-"_s + columns + u".conf"_s);
}

/// Commands whose output is held against the text of their names, with `@` for the source tree.
const struct
{
    const char *name;
    QStringList words;
    int exitStatus;
} goldens[] = {
    {"receipt", {u"@/samples/printFullOrderReceipt.xml"_s}, 0},
    {"fiscal", {u"@/samples/printAbstractOrderFiscal.xml"_s}, 0},
    {"sections", {u"--annotate"_s, u"@/tests/golden/odd/second-method.xml"_s}, 0},
    {"annotated", {u"--annotate"_s, u"@/tests/golden/preview/annotated.xml"_s}, 0},
    {"columns", {u"--columns"_s, u"24"_s, u"@/tests/golden/preview/sold.xml"_s}, 0},
    {"printfile", {u"@/tests/golden/odd/nested-and-text.prn"_s}, 0},
    {"odd", {u"@/tests/golden/preview/odd.prn"_s}, 0},
    {"edges", {u"@/tests/golden/preview/edges.prn"_s}, 0},
    {"commands", {u"--columns"_s, u"23"_s, u"@/tests/golden/preview/commands.prn"_s}, 0},
    {"several",
     {u"@/samples/printAbstractOrder.xml"_s, u"@/tests/golden/paper32/printPartialOrder.prn"_s},
     0},
    {"unified",
     {u"--against"_s, u"@/samples/zentaro-32.conf"_s, u"@/tests/golden/preview"_s,
      u"@/samples/printFullOrder.xml"_s},
     1},
};

TEST(Preview, PrintsItsReferences)
{
    const Home home(configuration(u"40"_s));
    for (const auto &golden : goldens) {
        QStringList words{u"preview"_s};
        for (QString word : golden.words)
            words += word.replace(u'@', sourceDir());
        const Outcome outcome = zentaro(words, home);
        EXPECT_EQ(outcome.exitStatus, golden.exitStatus) << outcome.errors.toStdString();
        const QByteArray text = QByteArray(outcome.output)
                                    .replace(sourceDir().toUtf8(), "@")
                                    .replace(home.path().toUtf8(), "~");
        support::expectReference(sourceDir() + u"/tests/golden/preview/"_s
                                     + QLatin1StringView(golden.name) + u".txt"_s,
                                 text);
    }
}

/// A request is drawn from the bytes of the print run, and a print file needs no configuration.
TEST(Preview, DrawsWhatThePrintRunPrints)
{
    const Home home(configuration(u"40"_s));
    const Home empty;
    const QDir samples(sourceDir() + u"/samples"_s);
    const QStringList names = samples.entryList({u"*.xml"_s});
    ASSERT_GE(names.size(), 13);
    for (const QString &name : names) {
        const QString request = samples.filePath(name);
        const QString printFile = home.path(u"print.out"_s);
        support::writeFile(printFile, support::printed(support::readFile(request), home));
        const Outcome fromRequest = zentaro({u"preview"_s, request}, home);
        const Outcome fromFile = zentaro({u"preview"_s, u"--columns"_s, u"40"_s, printFile}, empty);
        EXPECT_EQ(fromRequest.output, fromFile.output) << name.toStdString();
        EXPECT_GT(fromRequest.output.size(), 100);
        EXPECT_EQ(fromFile.exitStatus, 0);
        EXPECT_EQ(fromFile.errors, "") << name.toStdString();
    }
}

TEST(Preview, TellsARequestFromAPrintFileByItsContent)
{
    const std::pair<QByteArray, bool> files[] = {
        {"<print/>", true},
        {"\xEF\xBB\xBF<print/>", true},
        {QByteArray(" \r\n\t<?xml?>"), true},
        {QByteArray("\xFF\xFE<\0?\0", 6), true},
        {QByteArray("\xFE\xFF\0<\0?", 6), true},
        {QByteArray("\0<\0?", 4), true},
        {"\nj\n\"<print/>\"@\n", false},
        {"\n\"<\"1*1H1R\r\n", false},
        {"", false},
    };
    for (const auto &[content, isRequest] : files)
        EXPECT_EQ(preview::isRequest(content), isRequest) << content.toStdString();
}

TEST(Preview, TellsWhatIsWrong)
{
    const Home home(configuration(u"40"_s));
    const QString request = sourceDir() + u"/tests/golden/preview/sold.xml"_s;
    const QString printFile = sourceDir() + u"/tests/golden/paper32/printSold.prn"_s;
    support::writeFile(home.path(u"broken.xml"_s),
                       "<p>\n<method name=\"printSold\"/>\n<receipe\n quantity=2/>");
    support::writeFile(home.path(u"broken.conf"_s), "zentaro: {");
    support::writeFile(home.path(u"unknown.xml"_s), "<p>\n<method name=\"printNothing\"/></p>");
    support::writeFile(home.path(u"empty"_s), "");
    support::writeFile(home.path(u"blank.xml"_s), "\n<print a=1/>");
    support::writeFile(home.path(u"large"_s), "");
    ASSERT_TRUE(QFile::resize(home.path(u"large"_s), preview::MostBytes + 1));
    const struct
    {
        QStringList words;
        int exitStatus;
        const char *message;
    } rows[] = {
        {{}, 2, "an argument is missing"},
        {{request, u"-o"_s, u"a.gif"_s}, 2, "the name of a picture ends in .png, .svg or .pdf"},
        {{request, u"-o"_s, u""_s}, 2, "--output takes the name of a picture"},
        {{request, u"--columns"_s, u"0"_s}, 2, "--columns takes a number from 1 to 500"},
        {{request, u"--dpi"_s, u"9999"_s}, 2, "--dpi takes a number from 50 to 1200"},
        {{request, u"--width-mm"_s, u"70"_s}, 2, "--width-mm is 58 or 80"},
        {{request, u"--encoding"_s, u"x"_s}, 2, "unknown encoding `x`"},
        {{request, u"--config"_s, u"/no/such"_s}, 2, "/no/such: No such file"},
        {{request, u"--against"_s, u"/no/such"_s}, 2, "/no/such: No such file"},
        {{request, u"--against"_s, u"x"_s, u"--annotate"_s}, 2, "do not go together"},
        {{request, u"--against"_s, u""_s}, 2, "takes the name of a configuration"},
        {{request, u"--config"_s, home.path(u"broken.conf"_s)}, 0, "broken.conf: it has faults"},
        {{printFile, u"--against"_s, home.configurationPath()}, 2, "not a print request"},
        {{printFile, u"--annotate"_s}, 2, "a print file does not tell"},
        {{home.path(u"broken.xml"_s)}, 1, "line 4: the print run stops reading here"},
        {{home.path(u"unknown.xml"_s)}, 1, "File Format Not Supported"},
        {{home.path(u"empty"_s)}, 0, "nothing is printed"},
        {{home.path(u"blank.xml"_s)}, 1, "line 2: the print run stops reading here"},
        {{home.path(u"large"_s)}, 2, "it has more than 67108864 bytes"},
        {{sourceDir() + u"/samples"_s, u"--against"_s, home.configurationPath()}, 0, ""},
    };
    for (const auto &row : rows) {
        const Outcome outcome = zentaro(QStringList(u"preview"_s) + row.words, home);
        EXPECT_EQ(outcome.exitStatus, row.exitStatus) << row.message;
        EXPECT_TRUE(outcome.errors.contains(row.message))
            << row.message << " / " << outcome.errors.toStdString();
    }
}

/// In a locale without frames the paper is drawn in ASCII, and bytes are the locale's.
TEST(Preview, DrawsInTheLocalesEncoding)
{
    const Home home(configuration(u"40"_s));
    const support::Locale latin9(u"ISO-8859-15"_s);
    const QByteArray text =
        zentaro({u"preview"_s, u"--annotate"_s, sourceDir() + u"/tests/golden/preview/sold.xml"_s},
                home, latin9.variables())
            .output;
    EXPECT_TRUE(text.contains("j  +----------------------------------------+\n"));
    EXPECT_TRUE(text.contains("12    | 38 x Caff\xE8....................    49.40|\n"))
        << text.toStdString();
    EXPECT_TRUE(text.contains("0.0|0  <- 1 beyond the edge\n"));
}

std::vector<preview::PrintLine> linesOf(QByteArrayView file, QTextCodec *codec = nullptr)
{
    std::vector<preview::PrintLine> lines;
    for (qsizetype at = 0; at < file.size(); at = lines.back().next)
        lines.push_back(preview::lineAt(file, at, codec));
    return lines;
}

/// The bytes that lines were read from.
QByteArray bytesOf(const std::vector<preview::PrintLine> &lines)
{
    QByteArray bytes;
    for (const preview::PrintLine &line : lines) {
        bytes += line.kind == LineKind::Printed ? "\"" : "";
        for (const char32_t c : line.text) {
            if (preview::isUndecodedByte(c))
                bytes += char(c & 0xFF);
            else
                bytes += QStringView(QChar::fromUcs4(c)).toUtf8();
        }
        bytes += line.kind == LineKind::Printed ? "\"@" : "";
        if (line.end != preview::LineEnd::Missing)
            bytes += line.end == preview::LineEnd::LineFeed ? "\n" : "\r\n";
        EXPECT_EQ(line.next, bytes.size());
    }
    return bytes;
}

TEST(PaperRules, CountsWhatRunsOverTheEdge)
{
    const struct
    {
        QStringView text;
        int beyond;
    } rows[] = {
        {u"", 0},           {u"12345678  ", 0}, {u"1234567890", 2}, {u" 123456789 ", 2},
        {u"  ========", 0}, // a rule that is centred
        {u"=========", 1},  {u" =======x", 1},
    };
    for (const auto &row : rows)
        EXPECT_EQ(tools::beyondEdge(row.text, 8), row.beyond) << row.text.toString().toStdString();
    for (const QStringView number : {u"1", u"1.5", u".5"})
        EXPECT_TRUE(tools::isFiscalNumber(number, u'.')) << number.toString().toStdString();
    for (const QStringView number : {u"", u".", u"1.5.", u"-1", u"1,5", u"a"})
        EXPECT_FALSE(tools::isFiscalNumber(number, u'.')) << number.toString().toStdString();
    EXPECT_FALSE(tools::isFiscalNumber(QStringView(u"1.5")));
}

TEST(PrintFile, LosesNothing)
{
    std::mt19937 random(7);
    const QByteArrayList parts =
        QByteArray("\"|\"@\n|\n|j\n|J\n|1T\n|\r\n|\xC3\xA8|\xC3|\xED\xA0\x80|\xF0\x9F\x98\x80"
                   "|\xFF|x| |H1T|*|\xEF\xBB\xBF|\xEF\xBF\xBD|\x1B")
            .split('|');
    for (int i = 0; i < 300; ++i) {
        QByteArray content;
        for (int j = 0; j < 40; ++j)
            content += parts[qsizetype(random() % size_t(parts.size()))];
        EXPECT_EQ(bytesOf(linesOf(content)), content) << content.toHex(' ').toStdString();
    }
}

TEST(PrintFile, ReadsEveryEncodingCharacterByCharacter)
{
    EXPECT_EQ(linesOf("\"\xE8\xA4\"@\n", QTextCodec::codecForName("ISO-8859-15"))[0].text,
              U"\u00E8\u20AC");
    EXPECT_EQ(linesOf("\"\xB0\xA1\xFF.\"@\n", QTextCodec::codecForName("EUC-JP"))[0].text,
              U"\u4E9C\xDCFF.");
}

/// Whatever the bytes are, a terminal gets no command, and every row has its edge in one place.
TEST(Preview, SendsNoCommandToTheTerminal)
{
    const Home home;
    QByteArray content("\nj\n");
    for (int byte = 0; byte < 256; ++byte)
        content += "\"" + QByteArray(1, char(byte)) + "\xE4\xB8\xAD\xE2\x80\xAE\xC2\x9B" + "\"@\n";
    support::writeFile(home.path(u"p"_s), content);
    const QString text = QString::fromUtf8(zentaro({u"preview"_s, home.path(u"p"_s)}, home).output);
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), 256 + 2 + 1); // the line feed makes two of one
    for (const QString &line : lines) {
        for (const QChar c : line)
            EXPECT_TRUE(c.isPrint()) << line.toStdString();
        const QChar edge = line.at(3 + 1 + 32);
        EXPECT_TRUE(edge == u'│' || edge == u'┐' || edge == u'┄') << line.toStdString();
    }
}

TEST(Difference, KeepsAsManyRowsAsThereCanBe)
{
    const struct
    {
        const char *before;
        const char *after;
        const char *lines; ///< ` ` in both, `-` and `+` in one
    } rows[] = {
        {"abc", "abc", " a b c"},
        {"abc", "", "-a-b-c"},
        {"", "ab", "+a+b"},
        {"abc", "axc", " a-b+x c"},
        {"abcd", "acd", " a-b c d"},
        {"acd", "abcd", " a+b c d"},
        {"xabcy", "zabc", "-x+z a b c-y"},
        {"abcabba", "cbabac", "-a-b c-a b+a b a+c"},
    };
    const auto rowsOf = [](const char *letters) {
        std::vector<preview::Row> all;
        for (const char *letter = letters; *letter != 0; ++letter) {
            all.emplace_back();
            all.back().text = Cells(1, char32_t(*letter));
        }
        return all;
    };
    for (const auto &row : rows) {
        std::string lines;
        for (const auto &pair : preview::comparedRows(rowsOf(row.before), rowsOf(row.after))) {
            lines += pair.before < 0 ? '+' : pair.after < 0 ? '-' : ' ';
            lines += pair.before < 0 ? row.after[pair.after] : row.before[pair.before];
        }
        EXPECT_EQ(lines, row.lines);
    }
    const preview::TerminalDrawing drawing(nullptr, 0);
    const QString coloured = preview::unifiedDifference(rowsOf("a"), rowsOf("b"), drawing, true);
    EXPECT_EQ(QString(coloured).remove(QRegularExpression(u"\x1b\\[[0-9]*m"_s)),
              preview::unifiedDifference(rowsOf("a"), rowsOf("b"), drawing, false));
    EXPECT_EQ(coloured.count(u'\x1b'), 6);
}

} // namespace

// SPDX-License-Identifier: MIT
#include "config/config.h"
#include "tests/configfiles.h"
#include "tools/config/losses.h"
#include "tools/config/outline.h"
#include "tools/config/settingcheck.h"
#include "tools/knownkeys.h"
#include "tools/nearest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace configtool;
using support::Home;
using support::Outcome;
using support::rewritten;
using support::treeOf;
using support::zentaro;

namespace {

/// All that checking a "cfg" file finds: `line:column code excerpt...`, a line each.
QString checked(const QByteArray &text, const QString &format = u"cfg"_s)
{
    Outline outline = readOutline(text, format);
    std::vector<Finding> findings = outline.faults;
    for (const Finding &finding : checkSettings(outline))
        findings.push_back(finding);
    QString lines;
    for (const Finding &finding : tools::abridged(findings))
        lines += QString::number(finding.at.line) + u':' + QString::number(finding.at.column) + u' '
                 + finding.code + u'\n';
    return lines;
}

TEST(ConfigCheck, TellsWhatIsWrongAndWhere)
{
    struct Row
    {
        QByteArray text;
        QString found;
    };
    const QByteArray doc = "zentaro : {\n doc : {\n";
    const QByteArray end = "\n };\n};\n";
    const Row rows[] = {
        // what the text does not say
        {doc + "  paperWidth = 40\n  topMargin = 1;" + end, u"3:18 missing-semicolon\n"_s},
        {doc + "  style = \"a\n b\";" + end, u"3:13 missing-semicolon\n"_s},
        {doc + "  style = a",
         u"1:1 unclosed-group\n2:2 unclosed-group\n3:12 missing-semicolon\n"_s},
        {"zentaro : {\n a : \n doc : { paperWidth = 40; };\n};",
         u"2:2 unknown-group\n2:4 missing-brace\n"_s},
        {"zentaro : { doc : { style = a; }; bin : ",
         u"1:1 unclosed-group\n1:35 unclosed-group\n1:35 empty-group\n1:39 missing-brace\n"_s},
        {"zentaro : x { doc : { style = a; }; };", u"1:10 text-lost\n"_s},
        {"zentaro : { doc : { style = a; }\n db : { dbname = x; };\n};",
         u"1:32 missing-semicolon\n3:1 stray-brace\n"_s},
        {"zentaro : { doc : { style = a; }; }", u"1:35 missing-semicolon\n"_s},
        {"zentaro : { doc : { style = a; }; };\n}; more", u"2:1 stray-brace\n"_s},
        {doc + "  style = a; paperWidth 40;" + end + "# end", u"3:14 text-lost\n6:1 text-lost\n"_s},
        {doc + "  # wide paper\n  paperWidth = 40;" + end, u"3:3 stray-text\n"_s},
        {doc + "  paperWidth = 40;; topMargin = 1;" + end, u"3:19 stray-text\n"_s},
        {"zentaro { doc : { style = a; }; };", u"1:1 stray-text\n1:33 stray-brace\n"_s},
        {doc + QByteArray("  sty\0le = x;", 13) + end, u"3:3 stray-text\n"_s},
        {doc + "  style = a\"b\";" + end, u"3:11 lost-quotes\n"_s},
        {"\xEF\xBB\xBFzentaro : { doc : { style = a; }; };",
         u"1:1 byte-order-mark\n1:1 unknown-group\n"_s},
        // keys and groups
        {"", u"0:0 no-settings\n"_s},
        {"Zentaro : { doc : { style = a; }; };", u"1:1 unknown-group\n"_s},
        {"zentaro : { doc : { style = a; }; }; b : { c = 1; };", u"1:38 second-group\n"_s},
        {"a = 1; zentaro : { b = 1; };", u"1:1 unreachable-key\n1:20 unknown-key\n"_s},
        {"zentaro : { recieptdoc : { paperWidht = 1; }; empty : { }; };",
         u"1:13 unknown-group\n1:47 empty-group\n"_s},
        {doc + "paperWidht = 40;\ndescriptionWidth = 1;\nstyle.x = 1;\ndeep : { a = 1; };" + end,
         u"3:1 unknown-key\n4:1 unknown-key\n5:1 unreachable-key\n6:1 unknown-group\n"_s},
        {doc + "topMargin = 1;\ntopMargin = 2;" + end, u"4:1 duplicate-key\n"_s},
        {doc + "topMargin = 1;\nstyle = \"\"; };\n doc : { topMargin = 2; style = x;" + end,
         u"5:2 duplicate-group\n5:10 unreachable-key\n"_s},
        // values
        {doc + "topMargin = 4x;\npaperRows = ;\npaperWidth = -1;" + end,
         u"3:13 not-a-number\n4:13 not-a-number\n5:1 columns\n5:14 out-of-range\n"_s},
        {doc + "printDate = True; printTime = false; printNote = ;" + end,
         u"3:13 not-a-switch\n3:50 not-a-switch\n"_s},
        {doc + "quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 9;" + end,
         u"2:2 columns\n"_s},
        {doc + "quantityFieldWidth = 9; priceFieldWidth = 10; totalPriceFieldWidth = 9;" + end,
         u""_s},
        {"zentaro : { logger : { level = warning; type = replace; }; };", u"1:48 unknown-word\n"_s},
        {"zentaro : { language : { basedir = /no/such; file = x; }; };", u"1:53 language-file\n"_s},
        {"zentaro : { language : { basedir = /no/such; file = /; }; };", u"1:53 language-file\n"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(checked(row.text), row.found) << row.text.toStdString();
    EXPECT_EQ(checked("<zentaro>\n <doc paperWidht='1'/></zentaro>", u"xml"_s),
              u"2:2 unknown-key\n"_s);
    EXPECT_EQ(checked("<zentaro>\n <doc", u"xml"_s), u"0:0 no-settings\n2:6 xml\n"_s);
    const QByteArray deep =
        QByteArray("<a>\n").repeated(1'001) + QByteArray("</a>").repeated(1'001);
    EXPECT_EQ(checked(deep, u"xml"_s), u"0:0 no-settings\n1001:4 xml\n"_s);
}

TEST(ConfigCheck, ListsAHundredFindingsOfACode)
{
    const Outline outline = readOutline(QByteArray("a = 1;\n").repeated(150), u"cfg"_s);
    const std::vector<Finding> findings = tools::abridged(checkSettings(outline));
    ASSERT_EQ(findings.size(), 102U);
    EXPECT_EQ(findings.back().text, u"50 more like this"_s);
}

TEST(ConfigCheck, KnowsTheKeysOfTheDocumentedConfiguration)
{
    const QString page =
        QString::fromUtf8(support::readFile(support::sourceDir() + u"/doc/configuration.md"_s));
    static const QRegularExpression cell(
        u"^\\| `(?:zentaro\\.)?(?:\\w+\\.(?=\\w))?(\\w+)\\.?` \\|"_s,
        QRegularExpression::MultilineOption);
    QSet<QString> documented{u"copyNumber"_s};
    for (const auto &match : cell.globalMatch(page))
        documented += match.captured(1);
    QSet<QString> known;
    for (const QString &group : tools::knownGroups()) {
        if (tools::isDocumentGroup(group))
            known += group;
        for (const QString &word : tools::knownWords(group))
            known += word;
    }
    EXPECT_EQ(known, documented);
}

TEST(Nearest, FindsWhatWasMeant)
{
    const std::span<const QString> words = tools::knownWords(u"doc");
    const QString rows[][2] = {
        {u"paperWidht"_s, u"paperWidth"_s},
        {u"PAPERWIDTH"_s, u"paperWidth"_s},
        {u"papeWidth"_s, u"paperWidth"_s},
        {u"printdat"_s, u"printDate"_s},
        {u"colour"_s, u""_s},
        {u""_s, u""_s},
        {u"x"_s, u""_s},
    };
    for (const auto &[word, meant] : rows)
        EXPECT_EQ(tools::nearest(word, words), meant) << word.toStdString();
}

QByteArray randomText(QRandomGenerator &random, const QByteArray &letters, int most)
{
    QByteArray text;
    for (int i = random.bounded(most); i > 0; --i)
        text += letters[random.bounded(int(letters.size()))];
    return text;
}

TEST(ConfigLosses, AreNamedExactlyWhenTheFileReadsBackOtherwise)
{
    QRandomGenerator random(20'26);
    int losing = 0;
    for (int i = 0; i < 400; ++i) {
        const bool fromXml = i % 2 == 0;
        QByteArray text = fromXml ? "<g" : "g : { ";
        for (int k = 0; k < random.bounded(4); ++k) {
            const QByteArray key =
                "k" + QByteArray::number(k) + randomText(random, "a.:", fromXml ? 2 : 1);
            text += fromXml ? ' ' + key + "='" + randomText(random, ";\"ab \n=}", 4) + '\''
                            : key + " = \"" + randomText(random, "ab<& \n\t\"\xE9=}", 4) + "\"; ";
        }
        text += fromXml ? "><h/><i x='&#x20AC;'/></g>" : " h : { }; i : { j : {}; }; };";
        if (random.bounded(2) == 0)
            text = fromXml ? text.replace("<h/><i x='&#x20AC;'/>", "<h x='1'/>")
                           : text.replace(" h : { }; i : { j : {}; };", " h < : { x = 1; };");
        const QString from = fromXml ? u"xml"_s : u"cfg"_s;
        const Outline outline = readOutline(text, from);
        for (const QString &to : {u"cfg"_s, u"xml"_s}) {
            // An empty group that the reader dropped is named, and not in the tree either way.
            auto lost = lossesInFormat(outline, to);
            std::erase_if(lost, [&](const Finding &loss) {
                return !fromXml && !outline.entries[size_t(loss.subject)].hasMember
                       && loss.code == "lost-group"_L1;
            });
            const bool same = treeOf(rewritten(text, from, to), to) == treeOf(text, from);
            ASSERT_EQ(lost.empty(), same) << text.toStdString() << to.toStdString();
            losing += same ? 0 : 1;
        }
    }
    EXPECT_GT(losing, 100);
    EXPECT_LT(losing, 700);
}

const QByteArray small = "zentaro : { doc : { paperWidth = 40; style = \"a\nb\xFC\"; }; };";

TEST(ZentaroConfig, PrintsAndExitsLikeATool)
{
    struct Row
    {
        QStringList words;
        int exitStatus;
        QByteArray output;
        QByteArray error; ///< the beginning of its last but two lines
    };
    const Row rows[] = {
        {{u"get"_s, u"zentaro.doc.paperWidth"_s}, 0, "40\n", ""},
        {{u"get"_s, u"zentaro.doc.style"_s, u"zentaro.x"_s}, 1, "a\nb\u00fc\n\n", ""},
        {{u"list"_s}, 0, "zentaro.doc.paperWidth = 40\nzentaro.doc.style = a\\nb\u00fc\n", ""},
        {{u"check"_s, u"--file"_s, support::sourceDir() + u"/samples/zentaro-40.conf"_s},
         0,
         "",
         ""},
        {{u"--file"_s, support::sourceDir() + u"/samples/zentaro-32.conf"_s, u"get"_s,
          u"zentaro.doc.paperWidth"_s},
         0,
         "32\n",
         ""},
        {{u"convert"_s, u"--to"_s, u"cfg"_s, u"-"_s},
         0,
         "zentaro: \n{\n    doc: \n    {\n        paperWidth = \"40\";\n        style = "
         "\"a\nb\xFC\";\n"
         "    };\n\n};\n\n",
         ""},
        {{u"get"_s}, 2, "", "zentaro config get: an argument is missing\n"},
        {{u"list"_s, u"more"_s}, 2, "", "zentaro config list: one argument too many: `more`\n"},
        {{u"list"_s, u"--format"_s, u"ini"_s}, 2, "", "zentaro config list: unknown format `ini`"},
        {{u"list"_s, u"--file"_s, u"/no/such"_s},
         2,
         "",
         "zentaro config list: /no/such: No such file"},
        {{u"check"_s, u"--file"_s, u"/"_s}, 2, "", "zentaro config check: /: "},
        {{u"convert"_s, u"-"_s}, 2, "", "zentaro config convert: --to cfg or --to xml is needed\n"},
        {{u"convert"_s, u"--to"_s, u"cfg"_s, u"/no/such/file"_s},
         2,
         "",
         "Error in the method Config::buildConfigFile( /no/such/file ): Unable To Open File\n"},
        {{u"check"_s, u"--file"_s, u"/dev/zero"_s},
         2,
         "",
         "zentaro config check: /dev/zero: more than 64 MiB"},
        {{u"lost"_s}, 2, "", "zentaro config: unknown command `lost`\n"},
        {{u"--lost"_s, u"get"_s}, 2, "", "zentaro config: Unknown option 'lost'.\n"},
        {{}, 2, "", "Usage: zentaro config [options] COMMAND ...\n"},
    };
    const Home home(small);
    for (const Row &row : rows) {
        const Outcome outcome = zentaro(QStringList(u"config"_s) + row.words, home);
        EXPECT_EQ(outcome.exitStatus, row.exitStatus) << row.words.join(u' ').toStdString();
        EXPECT_EQ(outcome.output, row.output);
        EXPECT_TRUE(row.error.isEmpty() ? outcome.errors.isEmpty()
                                        : outcome.errors.startsWith(row.error))
            << outcome.errors.toStdString();
    }
    const Outcome tree = zentaro({u"config"_s, u"tree"_s}, home);
    EXPECT_EQ(tree.output, "Tree \n" + home.configurationPath().toUtf8()
                               + "\nzentaro\ndoc\npaperWidth = 40\nstyle = a\nb\u00fc\n");
    EXPECT_EQ(zentaro({u"--version"_s}, home).output, "zentaro 0.1.0\n");
}

TEST(ZentaroConfig, PrintsFindingsForPeopleAndTools)
{
    const Home home("zentaro : {\n doc : { paperWith = 40; };\n};");
    const Outcome text = zentaro({u"config"_s, u"check"_s}, home);
    EXPECT_EQ(text.exitStatus, 1);
    EXPECT_EQ(text.output, home.configurationPath().toUtf8()
                               + ":2:10: warning: nothing reads the key `zentaro.doc.paperWith` "
                                 "(did you mean `paperWidth`?) [unknown-key]\n");
    const Outcome json = zentaro({u"config"_s, u"check"_s, u"--json"_s}, home);
    EXPECT_EQ(json.exitStatus, 1);
    const QJsonArray array = QJsonDocument::fromJson(json.output).array();
    ASSERT_EQ(array.size(), 1);
    EXPECT_EQ(array[0][u"line"].toInt(), 2);
    EXPECT_EQ(array[0][u"code"].toString(), u"unknown-key"_s);
}

TEST(ZentaroConfig, TakesAPipeAndNoNameThatTheToolkitWouldMistake)
{
    const struct
    {
        QString words;
        int exitStatus;
        QByteArray output;
    } rows[] = {
        {u"get a.b -f <(echo 'a : { b = 1; };')"_s, 0, "1\n"},
        {u"convert --to xml - -f <(echo 'a : { b = 1; };')"_s, 0, "\n<a\n    b = \"1\">\n</a>\n"},
        {u"init -f $HOME/$'\\xe4'"_s, 2, ""},
    };
    const Home home;
    for (const auto &row : rows) {
        const Outcome outcome = support::run(
            u"bash"_s, {u"-c"_s, u"\"$0\" config "_s + row.words, QStringLiteral(ZENTARO_PROGRAM)},
            home);
        EXPECT_EQ(outcome.exitStatus, row.exitStatus) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.output, row.output);
    }
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList());
}

TEST(ZentaroConfig, ConvertsOnlyWithForceWhatWouldBeLost)
{
    const Home home("zentaro : { doc : { style = \"<b>\"; }; };\nmore : { a = 1; };");
    const QString out = home.path(u"out.xml"_s);
    const QStringList words{u"config"_s, u"convert"_s, u"--to"_s, u"xml"_s, out};
    const Outcome refused = zentaro(words, home);
    EXPECT_EQ(refused.exitStatus, 1);
    EXPECT_EQ(refused.errors.count("[lost-value]"), 1);
    EXPECT_EQ(refused.errors.count("[lost-group]"), 1);
    EXPECT_FALSE(QFile::exists(out));
    EXPECT_EQ(zentaro(words + QStringList(u"--force"_s), home).exitStatus, 0);
    EXPECT_TRUE(support::readFile(out).contains("style = \"<b>\""));
    // Nothing is lost, but the file exists.
    const QStringList back{u"config"_s,
                           u"convert"_s,
                           u"--to"_s,
                           u"cfg"_s,
                           out,
                           u"--file"_s,
                           support::sourceDir() + u"/samples/zentaro-40.conf"_s};
    const Outcome exists = zentaro(back, home);
    EXPECT_EQ(exists.exitStatus, 1);
    EXPECT_TRUE(exists.errors.contains("exists"));
}

TEST(ZentaroConfig, StartsWithACompleteConfiguration)
{
    for (const QString &columns : {u"32"_s, u"40"_s}) {
        const Home home;
        const QStringList words{u"config"_s, u"init"_s, u"--columns"_s, columns};
        EXPECT_EQ(zentaro(words, home).exitStatus, 0);
        const QByteArray written = support::readFile(home.configurationPath());
        EXPECT_EQ(written, support::readFile(support::sourceDir() + u"/samples/zentaro-"_s + columns
                                             + u".conf"_s));
        EXPECT_EQ(zentaro({u"config"_s, u"check"_s}, home).output, "");
        const libconfig::Config config(home.configurationPath(), u"cfg"_s);
        for (const QString &group : tools::knownGroups()) {
            for (const tools::KnownKey &key : tools::knownKeys(group)) {
                const bool isNumber =
                    key.kind == tools::KeyKind::Number && key.word != "copyNumber"_L1;
                if (isNumber || key.kind == tools::KeyKind::Switch) {
                    EXPECT_NE(config.lookup(u"zentaro."_s + group + u'.' + key.word), u""_s)
                        << group.toStdString() << ' ' << key.word.data();
                }
            }
        }
        support::writeFile(home.configurationPath(), "mine");
        EXPECT_EQ(zentaro(words, home).exitStatus, 2);
        EXPECT_EQ(support::readFile(home.configurationPath()), "mine");
        EXPECT_EQ(zentaro(words + QStringList(u"--force"_s), home).exitStatus, 0);
        EXPECT_EQ(support::readFile(home.configurationPath()), written);
    }
}

TEST(ZentaroConfig, NeedsADisplayToEditOnly)
{
    const Home home(small);
    const QStringList none{u"DISPLAY="_s, u"WAYLAND_DISPLAY="_s, u"QT_QPA_PLATFORM=xcb"_s};
    EXPECT_EQ(zentaro({u"config"_s, u"get"_s, u"zentaro.doc.paperWidth"_s}, home, none).output,
              "40\n");
    const Outcome outcome = zentaro({u"config"_s, u"edit"_s}, home, none);
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_TRUE(outcome.errors.contains("zentaro config edit: ")) << outcome.errors.toStdString();
}

} // namespace

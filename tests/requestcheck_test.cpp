// SPDX-License-Identifier: MIT
#include "tests/checkedrequests.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using support::Codes;
using support::codesIn;
using support::document;
using support::Home;
using support::Outcome;
using support::zentaro;

namespace {

QString samples(const QString &name = {}) { return support::sourceDir() + u"/samples/"_s + name; }

/// Runs the check with the configuration of the samples for paper of 40 columns.
Outcome checked(const QStringList &words, const QStringList &variables = {})
{
    const Home home;
    return zentaro(QStringList{u"check"_s, u"-c"_s, samples(u"zentaro-40.conf"_s)} + words, home,
                   variables);
}

TEST(RequestCheck, FindsNoFaultInTheSamples)
{
    const std::pair<QString, Codes> papers[] = {
        {u"zentaro-40.conf"_s, {"hidden-item", "prints-nothing", "switch-off"}},
        // The labels of the report's tables and of the unpaid amount are wider by themselves.
        {u"zentaro-32.conf"_s,
         {"cut-description", "hidden-item", "prints-nothing", "switch-off", "line-too-long"}}};
    for (const auto &[configuration, allowed] : papers) {
        SyncSingleton<ZTConfiguration>::instance()->readFile(samples(configuration), u"cfg"_s);
        for (const QString &name : QDir(samples()).entryList({u"*.xml"_s})) {
            const Codes codes = codesIn(support::readFile(samples(name)));
            EXPECT_TRUE(std::ranges::includes(allowed, codes)) << name.toStdString();
            EXPECT_TRUE(!codes.contains("line-too-long") || name == "printReport.xml"_L1
                        || name == "printAbstractOrderReceipt.xml"_L1)
                << name.toStdString();
        }
    }
}

TEST(RequestCheck, TellsFaultsInOrder)
{
    const QString folder = support::sourceDir() + u"/tests/golden/check/"_s;
    const Outcome text = checked({folder + u"faults.xml"_s});
    EXPECT_EQ(text.exitStatus, 1);
    EXPECT_EQ(text.errors, "");
    QByteArray messages = text.output;
    messages.replace(folder.toUtf8(), "");
    support::expectReference(folder + u"faults.txt"_s, messages);

    const Outcome json = checked({u"--json"_s, folder + u"faults.xml"_s, samples()});
    const QJsonArray findings = QJsonDocument::fromJson(json.output).array();
    EXPECT_GT(findings.size(), messages.count('\n'));
    const QJsonObject first{{u"file"_s, folder + u"faults.xml"_s},
                            {u"line"_s, 4},
                            {u"column"_s, 3},
                            {u"endLine"_s, 4},
                            {u"endColumn"_s, 39},
                            {u"severity"_s, u"warning"_s},
                            {u"code"_s, u"before-method"_s},
                            {u"message"_s, findings[0][u"message"]}};
    EXPECT_EQ(findings[0].toObject(), first);
    const auto misspelt = std::ranges::find_if(
        findings, [](const QJsonValue &f) { return f[u"suggestion"] == u"receipe"_s; });
    ASSERT_NE(misspelt, findings.end());
    EXPECT_EQ((*misspelt)[u"line"], 14);
}

TEST(RequestCheck, AnswersByItsExitStatus)
{
    const support::Folder folder;
    const auto file = [&folder](const QString &name, const QByteArray &content) {
        support::writeFile(folder.path(name), content);
        return folder.path(name);
    };
    const QString fine = file(u"fine.xml"_s, document("Sold", ""));
    const QString warning = file(u"warning.xml"_s, document("Sold", "<x/>"));
    const QString error = file(u"error.xml"_s, "<p/>");
    const std::pair<QStringList, int> rows[] = {
        {{fine}, 0},
        {{warning, fine}, 0},
        {{u"--werror"_s, fine}, 0},
        {{u"--werror"_s, warning, fine}, 1},
        {{error, fine}, 1},
        {{folder.path()}, 1},
        {{fine, folder.path(u"missing.xml"_s)}, 2},
        {{fine, u"-c"_s, folder.path(u"missing.conf"_s)}, 2},
        {{fine, u"--bogus"_s}, 2},
        {{}, 2},
    };
    for (const auto &[words, status] : rows) {
        const Outcome outcome = checked(words);
        EXPECT_EQ(outcome.exitStatus, status) << words.join(u' ').toStdString();
        EXPECT_EQ(outcome.errors.isEmpty(), status < 2) << words.join(u' ').toStdString();
    }
    EXPECT_EQ(checked({fine}).output, "");
    EXPECT_EQ(checked({u"--json"_s, fine}).output, "[\n]\n");
    EXPECT_TRUE(checked({u"--werror"_s, warning}).output.contains(":1:30: error: `x` prints"));

    // What cannot be read keeps nothing else from being told, wherever it stands.
    file(u".hidden/a.xml"_s, "<p/>");
    ASSERT_EQ(std::rename(file(u"b.xml"_s, "").toUtf8(), folder.path().toUtf8() + "/\xE8.xml"), 0);
    const Outcome some = checked({folder.path(u"missing.xml"_s), folder.path()});
    EXPECT_EQ(some.exitStatus, 2);
    EXPECT_TRUE(some.errors.contains("missing.xml: No such file"));
    EXPECT_TRUE(some.errors.contains("/\xEF\xBF\xBD.xml: its name is not UTF-8"));
    EXPECT_EQ(some.output.count("[no-method]"), 2);
    std::remove(folder.path().toUtf8() + "/\xE8.xml"); // which the toolkit cannot

    const Home home;
    const Outcome input = support::run(u"sh"_s,
                                       {u"-c"_s, u"exec \"$0\" check - \"$1\" <\"$1\""_s,
                                        QStringLiteral(ZENTARO_PROGRAM), warning},
                                       home);
    EXPECT_EQ(input.output.count("no-configuration"), 1); // once for all requests
    EXPECT_TRUE(input.output.contains("\n-:1:30: warning: "));
    EXPECT_TRUE(input.output.endsWith("[unknown-element]\n"));
    EXPECT_EQ(input.output.count('\n'), 3);
}

TEST(RequestCheck, KnowsTheEncodingAndTheLabelsOfThePrintFile)
{
    const support::Folder folder;
    support::writeFile(
        folder.path(u"a.xml"_s),
        document("Sold", "<printers name=''/><headers a='\u20AC caff\u00E8 \u0153 \u25A0'/>"));
    const support::Locale latin9(u"ISO-8859-15"_s);
    const QByteArray output = checked({folder.path(u"a.xml"_s)}, latin9.variables()).output;
    EXPECT_TRUE(output.contains("U+25A0 in `a` prints as `?`: it is not in ISO-8859-15"))
        << output.data();
    EXPECT_EQ(output.count("not-in-encoding"), 1);
    EXPECT_EQ(checked({folder.path(u"a.xml"_s)}).output, "");

    const QString statement = folder.path(u"statement.xml"_s);
    support::writeFile(statement, support::readFile(samples(u"printStatementOfAccount.xml"_s))
                                      .replace("\"Balance\"", "\"Opening balance\""));
    EXPECT_TRUE(checked({statement}).output.contains("cut-description"));
    support::writeFile(folder.path(u"small.xml"_s),
                       support::readFile(statement).replace("\"Invoice\"", "\"invoice\""));
    support::writeFile(folder.path(u"de.conf"_s),
                       support::readFile(samples(u"zentaro-40.conf"_s))
                           .replace("basedir = \"\"", "basedir = \"" ZENTARO_TRANSLATIONS_DIR "/\"")
                           .replace("file = \"\"", "file = \"zentaro_de\""));
    EXPECT_EQ(checked({u"-c"_s, folder.path(u"de.conf"_s), statement}).output, "");
    EXPECT_TRUE(checked({u"-c"_s, folder.path(u"de.conf"_s), folder.path(u"small.xml"_s)})
                    .output.contains("did you mean `Invoice`?) [untranslated-type]"));
}

TEST(RequestCheck, IsDocumented)
{
    const QByteArray manual = support::readFile(support::sourceDir() + u"/man/zentaro-check.1"_s);
    qsizetype count = 0;
    for (const requestcheck::CodesOf &row : requestcheck::codes) {
        for (const std::string_view code : row.names) {
            ++count;
            EXPECT_TRUE(manual.contains(QByteArray(".It Cm ") + code.data() + '\n')) << code;
        }
    }
    EXPECT_EQ(manual.count(".It Cm "), count);
}

} // namespace

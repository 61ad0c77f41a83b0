// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"
#include "tests/support.h"
#include "tools/knownkeys.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using support::Home;
using support::Outcome;
using support::zentaro;

namespace {

/// The commands that a help text lists.
QStringList commandsIn(const QByteArray &help)
{
    QStringList names;
    for (const QString &line : QString::fromUtf8(help).section(u"Commands:\n"_s, 1).split(u'\n')) {
        if (line.startsWith(u"  "))
            names += line.trimmed().section(u' ', 0, 0);
    }
    return names;
}

/// What bash offers for words, the last of which is being typed.
QStringList offered(const QStringList &words, const Home &home)
{
    const QString script = u"source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); "
                           "_zentaro; printf '%s\\n' \"${COMPREPLY[@]}\""_s;
    const Outcome outcome = support::run(
        u"bash"_s,
        QStringList{u"-c"_s, script, u"bash"_s, support::sourceDir() + u"/completions/zentaro"_s}
            + words,
        home);
    EXPECT_EQ(outcome.errors, "");
    return QString::fromUtf8(outcome.output).split(u'\n', Qt::SkipEmptyParts);
}

QString manualPage(const QString &name)
{
    return QString::fromUtf8(support::readFile(support::sourceDir() + u"/man/"_s + name));
}

/// Holds a command's help against its page in the manual and what bash offers for it.
void expectOptionsEverywhere(const QStringList &command, const QString &manual, const Home &home)
{
    const Outcome help = zentaro(command + QStringList(u"--help"_s), home);
    const QString words = command.join(u' ');
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: zentaro " + words.toUtf8() + ' '));
    const QStringList completed =
        offered(QStringList(u"zentaro"_s) + command + QStringList(u"--"_s), home);
    static const QRegularExpression option(u"^ +(?:-\\w, )?--([\\w-]+)"_s,
                                           QRegularExpression::MultilineOption);
    QStringList options;
    for (const auto &match : option.globalMatch(QString::fromUtf8(help.output))) {
        options += u"--"_s + match.captured(1);
        const QRegularExpression documented(u"Fl -%1\\b"_s.arg(match.captured(1)));
        EXPECT_TRUE(manual.contains(documented))
            << words.toStdString() << ' ' << match.captured(1).toStdString();
    }
    EXPECT_EQ(QSet(options.begin(), options.end()), QSet(completed.begin(), completed.end()))
        << words.toStdString();
}

TEST(Manual, TellsTheOptionsThatTheHelpAndTheCompletionOffer)
{
    const Home home("zentaro : { doc : { paperWidth = 40; }; };");
    const QStringList groups = commandsIn(zentaro({u"--help"_s}, home).output);
    EXPECT_EQ(groups, (QStringList{u"check"_s, u"config"_s, u"preview"_s, u"queue"_s}));
    EXPECT_EQ(offered({u"zentaro"_s, u""_s}, home).first(groups.size()), groups);
    for (const QString &group : groups) {
        EXPECT_TRUE(manualPage(u"zentaro.1"_s).contains(u".It Cm "_s + group + u'\n'));
        const QString manual = manualPage(u"zentaro-"_s + group + u".1"_s);
        const QStringList commands = commandsIn(zentaro({group, u"--help"_s}, home).output);
        if (commands.isEmpty())
            expectOptionsEverywhere({group}, manual, home);
        else
            EXPECT_EQ(offered({u"zentaro"_s, group, u""_s}, home).first(commands.size()), commands);
        for (const QString &command : commands) {
            EXPECT_TRUE(manual.contains(u".It Cm "_s + command)) << command.toStdString();
            expectOptionsEverywhere({group, command}, manual, home);
        }
    }
}

TEST(Completion, KnowsKeysAndValues)
{
    const Home home("zentaro : { doc : { paperWidth = 40; }; };");
    EXPECT_EQ(offered({u"zentaro"_s, u"config"_s, u"-f"_s, u"x"_s, u"c"_s}, home),
              (QStringList{u"check"_s, u"convert"_s}));
    EXPECT_EQ(
        offered({QStringLiteral(ZENTARO_PROGRAM), u"config"_s, u"get"_s, u"zentaro.doc.p"_s}, home),
        QStringList(u"zentaro.doc.paperWidth"_s));
    EXPECT_EQ(offered({u"zentaro"_s, u"check"_s, u"-c"_s, u"x"_s, u"--j"_s}, home),
              QStringList(u"--json"_s));
    EXPECT_EQ(offered({u"zentaro"_s, u"preview"_s, u"--width-mm"_s, u"5"_s}, home),
              QStringList(u"58"_s));
}

TEST(Manual, ListsEveryKeyAsTheFuzzDictionaryDoes)
{
    const QString words =
        QString::fromUtf8(support::readFile(support::sourceDir() + u"/fuzz/zentaro.dict"_s));
    const auto expectInDictionary = [&words](const QString &word) {
        EXPECT_TRUE(words.contains(u'"' + word + u"\"\n"_s)) << word.toStdString();
    };
    for (const DocumentMethod &method : documentMethods)
        expectInDictionary(method.name);
    const QString keys = manualPage(u"zentaro.conf.5"_s);
    for (const QString &group : tools::knownGroups()) {
        const QString prefix = u".It Cm zentaro."_s + group;
        EXPECT_TRUE(keys.contains(prefix)) << group.toStdString();
        expectInDictionary(group);
        for (const QString &word : tools::knownWords(group)) {
            EXPECT_TRUE(keys.contains(u".It Cm "_s + word + u' ')
                        || keys.contains(prefix + u'.' + word + u' ') || word == "copyNumber"_L1)
                << group.toStdString() << '.' << word.toStdString();
            expectInDictionary(word);
        }
    }
}

TEST(Manual, IsWellFormed)
{
    const QDir pages(support::sourceDir() + u"/man"_s);
    const QStringList names = pages.entryList({u"*.1"_s, u"*.5"_s, u"*.7"_s});
    EXPECT_EQ(names.size(), 8);
    for (const QString &name : names) {
        const Outcome lint =
            support::run(u"mandoc"_s, {u"-Tlint"_s, u"-Wwarning"_s, pages.filePath(name)}, Home());
        EXPECT_EQ(lint.exitStatus, 0) << lint.output.toStdString() << lint.errors.toStdString();
        const QByteArray index = support::readFile(pages.filePath(u"CMakeLists.txt"_s));
        EXPECT_TRUE(index.contains(name.toUtf8())) << name.toStdString();
    }
}

TEST(Manual, NamesEveryCodeOfTheConfigurationsFindings)
{
    const QString manual = manualPage(u"zentaro-config.1"_s);
    static const QRegularExpression code(u"\"([a-z]+(?:-[a-z]+)+)\"_L1"_s);
    int codes = 0;
    for (const char *const file : {"cfgoutline", "losses", "outline", "settingcheck"}) {
        const QString source = QString::fromUtf8(support::readFile(
            support::sourceDir() + u"/tools/config/"_s + QLatin1StringView(file) + u".cpp"_s));
        for (const auto &match : code.globalMatch(source)) {
            ++codes;
            EXPECT_TRUE(manual.contains(u".It Cm "_s + match.captured(1) + u'\n'))
                << match.captured(1).toStdString();
        }
    }
    EXPECT_GT(codes, 20);
}

} // namespace

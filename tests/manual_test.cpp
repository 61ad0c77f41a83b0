// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"
#include "tests/support.h"
#include "tools/check/requestcheck.h"
#include "tools/config/outline.h"

#include <QDir>
#include <QFileInfo>
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
    EXPECT_EQ(groups,
              (QStringList{u"check"_s, u"config"_s, u"preview"_s, u"queue"_s, u"schema"_s}));
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
    const Home home;
    const struct
    {
        QString words; // the last of them being typed
        QString offers;
    } rows[] = {
        {u"config -f x c"_s, u"check convert"_s},
        {u"config get zentaro.doc.paper"_s, u"zentaro.doc.paperWidth zentaro.doc.paperRows"_s},
        {u"config set zentaro.doc.printTime "_s, u"true false"_s},
        {u"config set --all printTime t"_s, u"true"_s},
        {u"config set --all paper"_s, u"paperWidth paperRows"_s},
        {u"config unset zentaro.doc.printTime zentaro.doc.paperW"_s, u"zentaro.doc.paperWidth"_s},
        {u"config --format = x"_s, u"xml"_s},
        {u"config init --columns ="_s, u"32 40 42 48"_s},
        {u"config init -l i"_s, u"it"_s},
        {u"check -c x --j"_s, u"--json"_s},
        {u"preview --width-mm 5"_s, u"58"_s},
    };
    for (const auto &[words, offers] : rows)
        EXPECT_EQ(offered(QStringList(support::zentaroProgram()) + words.split(u' '), home),
                  offers.split(u' '))
            << words.toStdString();
}

/// The lines of the page work as they stand there, from nothing, and have nothing to warn of.
TEST(Readme, SetsUpAShop)
{
    const Home home;
    const QString page =
        QString::fromUtf8(support::readFile(support::sourceDir() + u"/README.md"_s));
    const QString shop =
        page.section(u"\n## A shop in five minutes\n"_s, 1).section(u"\n## "_s, 0, 0);
    const QString lines = shop.section(u"```sh\n"_s, 2).section(u"```"_s, 0, 0);
    EXPECT_TRUE(lines.startsWith("zentaro config init --columns 42 --language it\n"_L1));
    const Outcome outcome = support::run(u"sh"_s, {u"-ec"_s, "cd \"$HOME\"\n"_L1 + lines}, home,
                                         {u"PATH="_s + QFileInfo(support::zentaroProgram()).path()
                                          + u':' + qEnvironmentVariable("PATH")});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_FALSE(outcome.output.contains("warning")) << outcome.output.toStdString();
    const QByteArray ticket = support::readFile(home.path(u"ticket.out"_s));
    EXPECT_TRUE(ticket.contains("\n\"  2 Pizza Margherita.........7.50    15.00\"@\n")
                && ticket.contains("\"    SOMMA........................    15.00\"@\n"))
        << ticket.toStdString();
}

/// What the page says of a setting, a line for each sentence.
QString described(const Setting &setting, const QString &key)
{
    static const QStringList kinds{u"text"_s,   u"folder"_s, u"file name"_s, u"number"_s,
                                   u"switch"_s, u"text"_s,   u"text"_s};
    QString kind = kinds[int(setting.kind)];
    if (setting.kind == SettingKind::Number)
        kind += u" to %L1"_s.arg(setting.most);
    if (!setting.byDefault.isEmpty())
        kind += u", "_s + setting.byDefault;
    QString text = u".It Cm %1 Pq %2\n%3\n"_s.arg(
        key, kind, QString::fromLatin1(setting.effect).replace(u". "_s, u".\n"_s));
    const QStringList groups = tools::groupsWith(key);
    if (groups.size() == 1)
        text += u"Only in\n.Cm zentaro.%1 .\n"_s.arg(groups.front());
    for (const QString &group : tools::knownGroups()) {
        if (groups.size() > 1 && tools::isDocumentGroup(group) && !groups.contains(group))
            text += u"Not in\n.Cm zentaro.%1 .\n"_s.arg(group);
    }
    return text;
}

/// The part of the page that is written from the table of settings.
QString settingsPart()
{
    QString part = u".Bl -column \"zentaro.prefiscaldoc\" \"printAbstractOrderReceipt\"\n"_s;
    for (const DocumentType &type : documentTypes) {
        QStringList methods;
        for (const DocumentMethod &method : documentMethods) {
            if (method.settingsType == type.name)
                methods += method.name;
        }
        part +=
            u".It Cm %1 Ta %2\n"_s.arg(QString(type.keyPrefix).chopped(1), methods.join(u", "_s));
    }
    part += u".El\n.Pp\nThese are the keys in each of them:\n.Bl -tag -width Ds\n"_s;
    for (const Setting &setting : allSettings) {
        if (setting.group.isEmpty())
            part += described(setting, setting.word);
    }
    part += u".El\n.Pp\nAnd these are the others, of which\n.Xr zentaro-print 1\nreads those of "
            "the language, and the shared libraries of the suite the rest:\n.Bl -tag -width Ds\n"_s;
    for (const Setting &setting : allSettings) {
        if (!setting.group.isEmpty())
            part += described(setting, tools::keyOf(setting.group, setting.word));
    }
    return part + u".El\n"_s;
}

TEST(ManualReference, ListsTheSettingsOfTheTable)
{
    const QString path = support::sourceDir() + u"/man/zentaro.conf.5"_s;
    const QString page = manualPage(u"zentaro.conf.5"_s);
    const QString begin = u"by scripts/update-golden.\n"_s;
    const QString end = u".\\\" End of the part.\n"_s;
    support::expectReference(
        path,
        (page.section(begin, 0, 0) + begin + settingsPart() + end + page.section(end, 1)).toUtf8());
}

TEST(Manual, IsWellFormed)
{
    const QDir pages(support::sourceDir() + u"/man"_s);
    const QStringList names = pages.entryList({u"*.1"_s, u"*.5"_s, u"*.7"_s});
    EXPECT_EQ(names.size(), 10);
    for (const QString &name : names) {
        const Outcome lint =
            support::run(u"mandoc"_s, {u"-Tlint"_s, u"-Wwarning"_s, pages.filePath(name)}, Home());
        EXPECT_EQ(lint.exitStatus, 0) << lint.output.toStdString() << lint.errors.toStdString();
        const QByteArray index = support::readFile(pages.filePath(u"CMakeLists.txt"_s));
        EXPECT_TRUE(index.contains(name.toUtf8())) << name.toStdString();
    }
}

TEST(Manual, NamesEveryCodeOfFindings)
{
    QString transcripts;
    for (const QString &name : {u"check"_s, u"check-requests"_s})
        transcripts += QString::fromUtf8(support::readFile(
            support::sourceDir() + u"/tests/golden/transcripts/"_s + name + u".txt"_s));
    QString manual = manualPage(u"zentaro-check.1"_s);
    qsizetype codes = 0;
    for (const auto &names : requestcheck::codes) {
        for (const std::string_view name : names) {
            const QString code = QString::fromLatin1(name);
            ++codes;
            EXPECT_TRUE(manual.contains(u".It Cm "_s + code + u'\n')) << name;
            EXPECT_TRUE(transcripts.contains(u'[' + code + u']')) << name << " is tested nowhere";
        }
    }
    EXPECT_EQ(manual.count(u".It Cm "_s), codes);

    manual = manualPage(u"zentaro-config.1"_s);
    codes = 0;
    static const QRegularExpression quoted(u"\"([a-z]+(?:-[a-z]+)+)\"_L1"_s);
    for (const char *const file : {"losses", "outline", "settingcheck"}) {
        const QString source = QString::fromUtf8(support::readFile(
            support::sourceDir() + u"/tools/config/"_s + QLatin1StringView(file) + u".cpp"_s));
        for (const auto &match : quoted.globalMatch(source)) {
            ++codes;
            EXPECT_TRUE(manual.contains(u".It Cm "_s + match.captured(1) + u'\n'))
                << match.captured(1).toStdString();
        }
    }
    EXPECT_GT(codes, 20);
}

} // namespace

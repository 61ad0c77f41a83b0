// SPDX-License-Identifier: MIT
#include "tests/support.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

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

TEST(ZentaroConfig, IsHelpedDocumentedAndCompleted)
{
    const Home home("zentaro : { doc : { paperWidth = 40; }; };");
    const QStringList commands = commandsIn(zentaro({u"config"_s, u"--help"_s}, home).output);
    ASSERT_EQ(commands.size(), 7);
    const QStringList groups = commandsIn(zentaro({u"--help"_s}, home).output);
    EXPECT_EQ(offered({u"zentaro"_s, u""_s}, home).first(groups.size()), groups);
    const QString page = support::sourceDir() + u"/man/zentaro-config.1"_s;
    const QString manual = QString::fromUtf8(support::readFile(page));
    static const QRegularExpression option(u"^ +(?:-\\w, )?--(\\w+)"_s,
                                           QRegularExpression::MultilineOption);
    for (const QString &command : commands) {
        const Outcome help = zentaro({u"config"_s, command, u"--help"_s}, home);
        EXPECT_EQ(help.exitStatus, 0);
        EXPECT_TRUE(help.output.startsWith("Usage: zentaro config " + command.toUtf8() + ' '));
        EXPECT_TRUE(manual.contains(u".It Cm "_s + command)) << command.toStdString();
        const QStringList completed = offered({u"zentaro"_s, u"config"_s, command, u"--"_s}, home);
        for (const auto &match : option.globalMatch(QString::fromUtf8(help.output))) {
            EXPECT_TRUE(manual.contains(u"Fl -"_s + match.captured(1)))
                << match.captured(1).toStdString();
            EXPECT_TRUE(completed.contains(u"--"_s + match.captured(1)))
                << command.toStdString() << ' ' << match.captured(1).toStdString();
        }
    }
    EXPECT_EQ(offered({u"zentaro"_s, u"co"_s}, home), QStringList(u"config"_s));
    EXPECT_EQ(offered({u"zentaro"_s, u"config"_s, u"-f"_s, u"x"_s, u"c"_s}, home),
              (QStringList{u"check"_s, u"convert"_s}));
    EXPECT_EQ(offered({u"zentaro"_s, u"config"_s, u""_s}, home).first(commands.size()), commands);
    EXPECT_EQ(
        offered({QStringLiteral(ZENTARO_PROGRAM), u"config"_s, u"get"_s, u"zentaro.doc.p"_s}, home),
        QStringList(u"zentaro.doc.paperWidth"_s));
    for (const char *const word : {"--config", "--json", "--werror"}) {
        const QString checkOption = QLatin1StringView(word);
        EXPECT_EQ(offered({u"zentaro"_s, u"check"_s, u"-c"_s, u"x"_s, checkOption}, home),
                  QStringList(checkOption));
    }
    const Outcome lint = support::run(u"mandoc"_s, {u"-Tlint"_s, page}, home);
    EXPECT_EQ(lint.exitStatus, 0) << lint.output.toStdString() << lint.errors.toStdString();
}

TEST(ZentaroPreview, IsHelpedDocumentedAndCompleted)
{
    const Home home;
    const Outcome help = zentaro({u"preview"_s, u"--help"_s}, home);
    EXPECT_EQ(help.exitStatus, 0);
    const QString page = support::sourceDir() + u"/man/zentaro-preview.1"_s;
    const QString manual = QString::fromUtf8(support::readFile(page));
    const QStringList completed = offered({u"zentaro"_s, u"preview"_s, u"--"_s}, home);
    static const QRegularExpression option(u"^ +(?:-\\w, )?--([\\w-]+)"_s,
                                           QRegularExpression::MultilineOption);
    int options = 0;
    for (const auto &match : option.globalMatch(QString::fromUtf8(help.output))) {
        const QString name = match.captured(1);
        EXPECT_TRUE(manual.contains(u"Fl -"_s + name + u' ')
                    || manual.contains(u"Fl -"_s + name + u'\n'))
            << name.toStdString();
        EXPECT_TRUE(completed.contains(u"--"_s + name)) << name.toStdString();
        ++options;
    }
    EXPECT_EQ(options, completed.size());
    EXPECT_EQ(offered({u"zentaro"_s, u"preview"_s, u"--diff"_s, u"s"_s}, home),
              QStringList(u"side"_s));
    const Outcome lint = support::run(u"mandoc"_s, {u"-Tlint"_s, page}, home);
    EXPECT_EQ(lint.exitStatus, 0) << lint.output.toStdString() << lint.errors.toStdString();
}

TEST(ZentaroConfig, NamesEveryCodeInTheManual)
{
    const QString manual =
        QString::fromUtf8(support::readFile(support::sourceDir() + u"/man/zentaro-config.1"_s));
    static const QRegularExpression code(u"\"([a-z]+(?:-[a-z]+)+)\"_L1"_s);
    int codes = 0;
    for (const char *const file : {"cfgoutline", "settingcheck", "valuecheck"}) {
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

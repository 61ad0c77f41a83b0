// SPDX-License-Identifier: MIT
// What a shell sees of the programs is held against the transcripts in golden/transcripts: under a
// heading (`# `) the commands (`$ `), and then what comes of them: standard output, the lines of
// standard error (`! `), an exit status other than 0 (`? `). The commands before the first heading
// go before those of each. Run scripts/update-golden to rewrite the transcripts, and review what
// changes; doc/faults.md tells what is decided for each fault.
#include "tests/support.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QDir transcripts(support::sourceDir() + u"/tests/golden/transcripts"_s);

class Transcripts : public testing::TestWithParam<QString>
{
};

/// Runs commands in a home folder with an empty configuration, as a user whom file permissions
/// bind, and tells what comes of them.
QByteArray outcomeOf(const QByteArray &commands)
{
    const support::Home home("");
    const QString programs = QFileInfo(support::zentaroPrintProgram()).path();
    QStringList words{u"sh"_s, u"-c"_s, QString::fromUtf8("cd \"$HOME\"\n" + commands)};
    if (geteuid() == 0)
        words =
            QStringList{u"setpriv"_s, u"--bounding-set=-dac_override,-dac_read_search"_s} + words;
    const support::Outcome outcome =
        support::run(words.takeFirst(), words, home,
                     {u"PATH="_s + programs + u':' + qEnvironmentVariable("PATH"),
                      u"SOURCE="_s + support::sourceDir(),
                      QStringLiteral("TRANSLATIONS=" ZENTARO_TRANSLATIONS_DIR)});

    QByteArray told = outcome.output;
    if (!told.isEmpty() && !told.endsWith('\n'))
        told += "\n\\ no newline\n";
    for (const QByteArray &line : outcome.errors.split('\n')) {
        if (!line.isEmpty())
            told += "! " + line + '\n';
    }
    if (outcome.exitStatus != 0)
        told += "? " + QByteArray::number(outcome.exitStatus) + '\n';
    return told.replace(home.path().toUtf8(), "HOME")
        .replace(support::sourceDir().toUtf8(), "SOURCE");
}

TEST_P(Transcripts, AreTrue)
{
    support::expectCases(
        transcripts.filePath(GetParam()), "# ", "$ ",
        [](const QByteArray &, const QByteArray &commands) { return outcomeOf(commands); });
}

INSTANTIATE_TEST_SUITE_P(Golden, Transcripts,
                         testing::ValuesIn(transcripts.entryList({u"*.txt"_s})),
                         [](const auto &test) {
                             static const QRegularExpression between(u"\\W"_s);
                             return QString(test.param).replace(between, u"_"_s).toStdString();
                         });

} // namespace

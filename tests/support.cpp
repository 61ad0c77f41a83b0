// SPDX-License-Identifier: MIT
#include "tests/support.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace support {

QString sourceDir() { return QStringLiteral(ZENTARO_SOURCE_DIR); }

QByteArray readFile(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(content), content.size());
}

QByteArray withoutTimeStamps(const QByteArray &log)
{
    static const QRegularExpression stamp(uR"(^\[[-\d]{10} [:\d]{12}\] )"_s,
                                          QRegularExpression::MultilineOption);
    return QString::fromLatin1(log).remove(stamp).toLatin1(); // of any encoding
}

void updateReference(const QString &reference, const QByteArray &found)
{
    if (qEnvironmentVariableIsSet("ZENTARO_UPDATE_GOLDEN"))
        writeFile(reference, found);
}

void expectReference(const QString &reference, const QByteArray &found)
{
    updateReference(reference, found);
    if (found == readFile(reference))
        return;
    const Folder folder;
    writeFile(folder.path(u"found"_s), found);
    QProcess diff;
    diff.start(u"diff"_s, {u"-au"_s, u"-F^#"_s, reference, folder.path(u"found"_s)});
    diff.waitForFinished();
    ADD_FAILURE() << diff.readAll().toStdString();
}

void expectCases(
    const QString &reference, const QByteArray &heading, const QByteArray &mark,
    const std::function<QByteArray(const QByteArray &heading, const QByteArray &lines)> &outcomeOf)
{
    QByteArray told;
    QByteArray before; // of every case
    QByteArray title;
    QByteArray lines;
    const auto finish = [&] {
        if (title.isEmpty())
            before = lines;
        else
            told += outcomeOf(title, before + lines);
        lines.clear();
    };
    for (const QByteArray &line : readFile(reference).split('\n')) {
        if (line.startsWith(heading)) {
            finish();
            title = line;
        } else if (line.startsWith(mark)) {
            lines += line.sliced(mark.size()) + '\n';
        } else {
            continue;
        }
        told += line + '\n';
    }
    finish();
    expectReference(reference, told);
}

Folder::~Folder()
{
    std::error_code ignored; // the toolkit's own removal leaves names that are not UTF-8
    std::filesystem::remove_all(folder.path().toStdString(), ignored);
}

Home::Home(const QByteArray &configuration)
{
    if (!configuration.isNull())
        writeFile(configurationPath(), configuration);
}

QString Home::configurationPath() const { return path(u".zentaro/conf/zentaro.conf"_s); }

Outcome run(const QString &program, const QStringList &words, const Home &home,
            const QStringList &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"ZENTARO_CONFIG_FOLDER"_s, home.path(u"etc"_s)); // never the machine's
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const QString &variable : variables)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, words);
    Outcome outcome;
    if (process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit)
        outcome.exitStatus = process.exitCode();
    else
        process.kill();
    process.waitForFinished(1'000);
    outcome.output = process.readAllStandardOutput();
    outcome.errors = process.readAllStandardError();
    return outcome;
}

QString zentaroPrintProgram() { return QStringLiteral(ZENTARO_PRINT_PROGRAM); }

QString zentaroProgram() { return QStringLiteral(ZENTARO_PROGRAM); }

Outcome zentaro(const QStringList &words, const Home &home, const QStringList &variables)
{
    return run(zentaroProgram(), words, home, variables);
}

QByteArray printed(const QByteArray &request, const Home &home)
{
    const Folder folder;
    const QString file = folder.path(u"request.xml"_s);
    const QString printFile = folder.path(u"print.out"_s);
    writeFile(file, request);
    const Outcome outcome = run(zentaroPrintProgram(), {file, printFile}, home);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "");
    return readFile(printFile);
}

} // namespace support

void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }

void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}

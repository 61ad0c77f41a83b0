// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <ostream>

/// What the tests share: files of their own, and the real programs run as a till runs them.
namespace support {

/// The root of the source tree.
QString sourceDir();

/// The content of a file; fails the test when it cannot be read.
QByteArray readFile(const QString &path);
/// Writes a file and the folders above it; fails the test when it cannot be written.
void writeFile(const QString &path, const QByteArray &content);
/// A log without the time stamps, which every line should have.
QByteArray withoutTimeStamps(const QByteArray &log);
/// With ZENTARO_UPDATE_GOLDEN set, makes what was found the reference, for review.
void updateReference(const QString &reference, const QByteArray &found);
/// Fails the test with a diff when what was found is not what the reference file holds, which may
/// be updated before.
void expectReference(const QString &reference, const QByteArray &found);
/// Holds a file of cases against what `outcomeOf` tells anew: under each heading stand the lines of
/// a case, and then what comes of it. The lines before the first heading go before those of each.
void expectCases(
    const QString &reference, const QByteArray &heading, const QByteArray &mark,
    const std::function<QByteArray(const QByteArray &heading, const QByteArray &lines)> &outcomeOf);

/// A folder that is gone with the object.
class Folder
{
public:
    ~Folder();
    /// The path of `name` inside the folder.
    QString path(const QString &name = {}) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

/// A home folder of its own, with the configuration file that the programs read. A null
/// configuration leaves the file away.
class Home : public Folder
{
public:
    explicit Home(const QByteArray &configuration = {});
    QString configurationPath() const;
};

/// What a program left behind.
struct Outcome
{
    int exitStatus = -1; ///< -1: it crashed, or did not end within a minute
    QByteArray output;
    QByteArray errors;
};

/// Runs a program with `HOME` and the folder of the queues' settings at `home`, in a UTF-8 locale,
/// unless `variables` ("NAME=value") say another.
Outcome run(const QString &program, const QStringList &words, const Home &home,
            const QStringList &variables = {});

/// The path of the print compiler.
QString zentaroPrintProgram();

/// The path of the companion program.
QString zentaroProgram();

/// Runs the companion program.
Outcome zentaro(const QStringList &words, const Home &home, const QStringList &variables = {});

/// The print file of a request, printed by the real program; fails the test when the program says
/// anything or its exit status is not 0.
QByteArray printed(const QByteArray &request, const Home &home);

} // namespace support

/// Shows the toolkit's strings in the messages of failed tests.
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QByteArray &bytes, std::ostream *out);

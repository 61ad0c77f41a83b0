// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <memory>
#include <span>
#include <vector>

namespace tools {
struct Call;
}

namespace configtool {
struct Source;
}

// The commands, as `zentaro check`: what each does stands in the table of them. All answer an exit
// status.

namespace preview {
struct Sheet;
struct PictureOptions;
int run(const tools::Call &call);
} // namespace preview

namespace requestcheck {
int run(const tools::Call &call);
} // namespace requestcheck

namespace schema {
int run(const tools::Call &call);
} // namespace schema

namespace queuetool {
int run(const tools::Call &call);
} // namespace queuetool

/// The companion program, and what its commands share: tables of commands, the common options and
/// the exit statuses.
namespace tools {

enum ExitStatus : int {
    Fine = 0,
    Findings = 1, ///< what was asked for ran, and found something to tell
    Trouble = 2,  ///< wrong usage, or a file that cannot be read or written
};

/// Thrown to end a command, after what there is to say has been told.
struct Ended
{
    int exitStatus = Trouble;
};

/// What needs the desktop's libraries: only the second program has it, which the companion starts
/// when something of it is wanted.
struct Desktop
{
    /// The window in which a configuration is edited; answers an exit status.
    int (*edit)(const Call &call, const configtool::Source &source);
    /// An application object that draws without a display, and minds no words but the program's.
    std::unique_ptr<QCoreApplication> (*pictureApplication)(char **argv);
    /// Writes the file, which is replaced when the new one is complete. Answers why it could not be
    /// written, and an empty text when it was.
    QString (*writePicture)(const std::vector<preview::Sheet> &sheets,
                            const preview::PictureOptions &options);
};

/// One call of a command.
struct Call
{
    QString command;   ///< the words that led here, as "zentaro config get"
    QStringList words; ///< those that follow
    int &argc;         ///< the process's own, for a command that needs an application object
    char **argv;
    const Desktop *desktop = nullptr; ///< null in the program that loads no desktop library
};

/// Tells on standard error, in one line, why the command does not do what was asked for; answers
/// the exit status.
int refuse(const Call &call, const QString &reason, ExitStatus exitStatus = Trouble);
/// The same for what is wrong with a file, or whatever has a name.
int tellTrouble(const Call &call, const QString &name, const QString &trouble);

/// A row of a table of commands.
struct Command
{
    QLatin1StringView name;
    QLatin1StringView summary; ///< half a sentence for the help
    int (*run)(const Call &call);
};

/// Calls the command that the first argument names; `--help` lists the commands. The options, of
/// all of them, may stand before the name.
int dispatch(const Call &call, const QString &description, std::span<const Command> commands,
             const QList<QCommandLineOption> &options = {});

/// The options and arguments of one command, with `--help` among them.
class CommandLine : public QCommandLineParser
{
public:
    CommandLine(const Call &call, const QString &description);

    /// Reads the words, `mostArguments` is -1 for any number of arguments. Ends the command when
    /// help was asked for, or the words are wrong, which is told.
    void read(int leastArguments, int mostArguments);
    /// Tells a mistake in the words, and where help is; ends the command.
    [[noreturn]] void wrongUsage(const QString &mistake) const;
    /// The toolkit's help, under the whole command instead of the program's name alone.
    QString help() const;

    const Call &call;
    std::span<const Command> commands; ///< for the help
};

/// Runs the companion program's commands; answers the exit status. `desktop` is null in the program
/// that loads no desktop library.
int runCompanion(int argc, char **argv, const Desktop *desktop);

/// The folder of the companion program, also while the second program runs.
QString programFolder();
/// The folder of the labels' translations, as installed or built; empty where there is none.
QString translationsFolder();

/// Runs the second program, with all words of this one, in the place of this process. Answers only
/// where it cannot be started: Trouble, which is told.
int startDesktop(const Call &call);

// The print requests that the words of a command name, and what they are printed with.

struct RequestFiles
{
    QStringList names;
    bool isWhole = true; ///< whether nothing that was named is missing
};

/// The files that the words name, in their order: `-` stands for standard input, a folder for the
/// files in it and its folders whose names end in `.xml`, sorted by path. A word that names no
/// file, a folder without one and a file whose name is not UTF-8 are told and left out.
RequestFiles requestFiles(const Call &call, const QStringList &words);

/// The file, or standard input, open for reading; null when it cannot be opened, which is told.
std::unique_ptr<QFile> openedRequest(const Call &call, const QString &name);

/// `--config`.
void addConfigurationOption(CommandLine &line);

/// Makes a file, cfg or xml by its name, the process's configuration, and `labels` the translation
/// that it names; for an empty name the user's own, as the print run reads it, and where there is
/// none, which answers false, a configuration without settings. Faults in it are told; a file that
/// cannot be read ends the command. It needs an application object.
bool useConfiguration(const Call &call, const QString &fileName, QTranslator &labels);

} // namespace tools

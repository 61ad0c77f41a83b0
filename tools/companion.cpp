// SPDX-License-Identifier: MIT
#include "tools/companion.h"

#include "tools/check/requestcheck.h"
#include "tools/config/configcommand.h"
#include "tools/preview/preview.h"
#include "tools/queue/queuecommand.h"
#include "tools/schema/schema.h"
#include "tools/terminal.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <unistd.h>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<Command, 5> commands = {{
    {"check"_L1, "tells what is wrong with print requests"_L1, requestcheck::run},
    {"config"_L1, "the configuration: reads, checks and changes it"_L1, configtool::run},
    {"preview"_L1, "shows what will be printed, as text or as a picture"_L1, preview::run},
    {"queue"_L1, "print queues: makes, lists, removes and tries them"_L1, queuetool::run},
    {"schema"_L1, "writes the schema of print requests, for editors"_L1, schema::run},
}};

/// A line for this program, and one for the print compiler beside it, which may be another's.
QString versions()
{
    QString lines = u"zentaro " ZENTARO_VERSION "\n"_s;
    QFile compiler(programFolder() + "/zentaro-print"_L1);
    const QByteArray bytes = compiler.open(QIODevice::ReadOnly) ? compiler.readAll() : QByteArray();
    if (const qsizetype mark = bytes.indexOf("@(#) zentaro-print "); mark >= 0)
        lines += QString::fromLatin1(bytes.constData() + mark + 5) + u'\n';
    return lines;
}

} // namespace

int runCompanion(int argc, char **argv, const Desktop *desktop)
{
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words.append(QFile::decodeName(argv[i]));
        // The toolkit would open another file than the one that is named. Requests are looked at
        // one by one.
        const bool namesRequests = words.first() == "check"_L1 || words.first() == "preview"_L1;
        if (QFile::encodeName(words.last()) != argv[i] && !namesRequests) {
            printError("zentaro: the word `"_L1 + words.last() + "` is not UTF-8\n"_L1);
            return Trouble;
        }
    }
    try {
        return dispatch({u"zentaro"_s, words, argc, argv, desktop},
                        {u"The companion of zentaro-print."_s, commands, {}, versions});
    } catch (const Ended &end) {
        return end.exitStatus;
    }
}

QString programFolder()
{
    const QString place = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).path();
    return QFile::exists(place + "/zentaro"_L1)
               ? place
               : QFileInfo(place + u"/" ZENTARO_BIN_FROM_LIBEXEC ""_s).canonicalFilePath();
}

QString translationsFolder()
{
    for (const auto place :
         {"/" ZENTARO_DATA_FROM_BIN "/zentaro/translations"_L1, "/../translations"_L1}) {
        if (const QFileInfo folder(programFolder() + place); folder.isDir())
            return folder.canonicalFilePath();
    }
    return {};
}

int startDesktop(const Call &call)
{
    const QString place = programFolder();
    // Beside this program in a build; where it is installed, as far from it as the build says.
    for (const QString &folder : {place, place + u"/" ZENTARO_LIBEXEC_FROM_BIN ""_s}) {
        execv(QFile::encodeName(folder + "/zentaro-window"_L1).constData(), call.argv);
        if (errno != ENOENT && errno != ENOTDIR)
            return tellTrouble(call, u"zentaro-window"_s, qt_error_string(errno));
    }
    return refuse(call, u"the package zentaro-desktop is needed for this"_s);
}

} // namespace tools

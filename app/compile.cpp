// SPDX-License-Identifier: MIT
#include "app/compile.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "text/system.h"

#include <QFile>
#include <QTranslator>

#include <csignal>
#include <cstdlib>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

/// Where memory runs out nothing more can be printed, but the loss must not be silent.
[[noreturn]] void endWithoutMemory()
{
    text::printLine("The document was not written completely: Cannot allocate memory"); // as it is
    std::_Exit(0);
}

/// What must not end the run, or reach the print file, from outside of it.
void shieldFromEnvironment()
{
    text::reserveStandardStreams();
    std::signal(SIGPIPE, SIG_IGN); // whoever reads the diagnostics or a piped print file is gone
    std::signal(SIGXFSZ, SIG_IGN); // the print file grows past a limit
    std::set_terminate(endWithoutMemory); // no other exception is thrown here
    qunsetenv("QT_FATAL_WARNINGS");
    qunsetenv("QT_FATAL_CRITICALS");
    // The toolkit warns on standard error, where the till expects nothing.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

} // namespace

void compile(int argc, char **argv)
{
    shieldFromEnvironment();
    if (argc != 3 && argc != 4) {
        const QByteArray program(argc > 0 ? argv[0] : "");
        text::printLine("Usage: " + program + " input_file output_file");
        return;
    }
    const QString requestName = text::nameOfFile(argv[1]);
    const QString printName = text::nameOfNewFile(argv[2]);
    const auto application = makeApplication(argc, argv);
    QTranslator translator; // without a translation the texts stay as they are
    loadTranslation(translator, *SyncSingleton<ZTConfiguration>::instance());
    QCoreApplication::installTranslator(&translator);
    CompanyPrinterDriver driver(printName);
    QFile request(requestName);
    requestreader::read(request, driver); // a fault ends the document where it stands
}

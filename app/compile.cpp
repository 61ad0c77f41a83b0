// SPDX-License-Identifier: MIT
#include "app/compile.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "text/filename.h"
#include "text/standardoutput.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The toolkit warns on standard error, where the till expects nothing.
void dropMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

void loadTranslation(QTranslator &translator, const ZTConfiguration &config)
{
    const QString base = config.getStrValue(u"zentaro.language.basedir"_s);
    const QString file = config.getStrValue(u"zentaro.language.file"_s);
    bool loaded = false; // a missing translation leaves the texts as they are
    if (file == "/"_L1)
        loaded = translator.load(text::nameOfFile(text::bytesOf(base)) + "/zentaro_"_L1
                                     + QLocale::system().name(),
                                 u"."_s);
    else if (const QString name = base + file; !name.isEmpty())
        loaded = translator.load(text::nameInFolder(text::bytesOf(name)));
    Q_UNUSED(loaded)
}

void printRequest(const QString &requestName, const QString &printName)
{
    CompanyPrinterDriver driver(printName);
    QFile request(requestName);
    requestreader::read(request, driver); // a fault ends the document where it stands
}

/// What must not end the run, or reach the print file, from outside of it.
void shieldFromEnvironment()
{
    text::reserveStandardStreams();
    std::signal(SIGPIPE, SIG_IGN); // whoever reads the diagnostics or a piped print file is gone
    std::signal(SIGXFSZ, SIG_IGN); // the print file grows past a limit
    qunsetenv("QT_FATAL_WARNINGS");
    qunsetenv("QT_FATAL_CRITICALS");
    qInstallMessageHandler(dropMessage);
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
    const QCoreApplication application(argc, argv);
    QTranslator translator;
    loadTranslation(translator, *SyncSingleton<ZTConfiguration>::instance());
    QCoreApplication::installTranslator(&translator);
    printRequest(requestName, printName);
}

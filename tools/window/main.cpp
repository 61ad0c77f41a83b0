// SPDX-License-Identifier: MIT
#include "tools/command.h"
#include "tools/terminal.h"
#include "tools/window/configeditor.h"
#include "tools/window/sheetpainter.h"

#include <QApplication>
#include <QLibraryInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QLatin1StringView command = "zentaro preview"_L1; // which runs

/// The toolkit aborts without a display; this ends the process in the usual way instead, with the
/// cause. Its other remarks about the machine are not the user's affair.
void endWhenFatal(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static QString cause; // what the display said first
    if (cause.isEmpty() && QLatin1StringView(context.category).startsWith("qt.qpa"_L1))
        cause = message;
    if (type != QtFatalMsg)
        return;
    tools::printError(command + ": "_L1
                      + tools::inOneLine((cause.isEmpty() ? message : cause).trimmed()) + u'\n');
    _exit(tools::Trouble);
}

int edit(const tools::Call &call, const configtool::Source &source)
{
    command = "zentaro config edit"_L1;
    qInstallMessageHandler(endWhenFatal);
    const QApplication application(call.argc, call.argv);
    QGuiApplication::setDesktopFileName(u"zentaro-config-edit"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/zentaro.svg"_s));
    QTranslator texts;
    QTranslator buttons; // the toolkit's own, where they are installed
    if (texts.load(QLocale::system(), u"window"_s, u"_"_s, u":/i18n"_s))
        QCoreApplication::installTranslator(&texts);
    if (buttons.load(QLocale::system(), u"qtbase"_s, u"_"_s,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&buttons);
    configtool::ConfigEditor editor;
    if (!editor.open(source))
        return tools::Trouble;
    editor.show();
    return QApplication::exec();
}

std::unique_ptr<QCoreApplication> pictureApplication(char **argv)
{
    static int argc = 1;
    qInstallMessageHandler(endWhenFatal);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopSettingsAware(false);
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    constexpr tools::Desktop desktop{edit, pictureApplication, preview::writePicture};
    return tools::runCompanion(argc, argv, &desktop);
}

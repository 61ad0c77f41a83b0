// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "tools/config/configeditor.h"
#include "tools/terminal.h"

#include <QApplication>

#include <cstdlib>
#include <unistd.h>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// The toolkit aborts without a display; this ends the process in the usual way instead.
void endWhenFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    tools::printError("zentaro config edit: "_L1 + message + u'\n');
    if (type == QtFatalMsg)
        _exit(tools::Trouble);
}

} // namespace

int edit(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Opens the configuration in a window, to look through it, change "
                            u"it and save it.\nWhat is wrong with it stands beside it."_s);
    addSourceOptions(line);
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    if (!source)
        return tools::Trouble;
    qInstallMessageHandler(endWhenFatal);
    const QApplication application(call.argc, call.argv);
    QGuiApplication::setDesktopFileName(u"zentaro-config-edit"_s);
    ConfigEditor editor;
    if (!editor.open(*source))
        return tools::Trouble;
    editor.show();
    return QApplication::exec();
}

} // namespace configtool

// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "config/newfile.h"
#include "tools/config/source.h"
#include "tools/config/template.h"
#include "tools/terminal.h"

#include <QDir>
#include <QFileInfo>

namespace configtool {

using namespace Qt::StringLiterals;

int init(const tools::Call &call)
{
    tools::CommandLine line(call, u"Writes a complete configuration to start from."_s);
    addSourceOptions(line);
    line.addOption({{u"c"_s, u"columns"_s},
                    u"The paper's width in characters, 32 or 40 (40 unless given)."_s,
                    u"COLUMNS"_s,
                    u"40"_s});
    line.addOption({u"force"_s, u"Writes over a file that exists."_s});
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    if (!source)
        return tools::Trouble;
    if (source->format != "cfg"_L1)
        return line.wrongUsage(u"a configuration to start from is written in the format cfg"_s);
    const QByteArray content = startingConfiguration(line.value(u"columns"_s));
    if (content.isEmpty())
        return line.wrongUsage("there is none for `"_L1 + line.value(u"columns"_s)
                               + "` columns, but for 32 and 40"_L1);
    if (QFileInfo::exists(source->path) && !line.isSet(u"force"_s)) {
        tools::printError(call.command + ": "_L1 + tools::inOneLine(source->path)
                          + " exists; --force writes over it\n"_L1);
        return tools::Trouble;
    }
    QDir().mkpath(QFileInfo(source->path).path());
    libconfig::NewFile file(source->path);
    if (!file.open() || !file.write(content))
        return tools::tellTrouble(call, source->path, file.errorString());
    return tools::printOut(source->path + u'\n');
}

} // namespace configtool

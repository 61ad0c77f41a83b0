// SPDX-License-Identifier: MIT
#include "tools/requests/configurationinuse.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "tools/config/source.h"
#include "tools/terminal.h"

#include <QFile>

namespace tools {

using namespace Qt::StringLiterals;

void addConfigurationOption(CommandLine &line)
{
    line.addOption(
        {{u"c"_s, u"config"_s},
         u"Prints with the configuration FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s});
}

std::optional<ConfigurationUse> useConfiguration(const Call &call, const CommandLine &line)
{
    const bool isNamed = line.isSet(u"config"_s);
    QString path = isNamed ? line.value(u"config"_s) : ZTConfiguration::userFile();
    const QString format = isNamed ? configtool::formatOf(path) : u"cfg"_s;
    const bool isMissing = !isNamed && !QFile::exists(path);
    if (isMissing) {
        path = u"/dev/null"_s; // an empty one in its place: the reader would tell of it
    } else if (QFile file(path); !file.open(QIODevice::ReadOnly)) {
        printError(call.command + ": "_L1 + path + ": "_L1 + file.errorString() + u'\n');
        return std::nullopt;
    }
    static ZTConfiguration configuration(path, format);
    SyncSingleton<ZTConfiguration>::instance_pointer.store(&configuration);
    return isMissing ? ConfigurationUse::Missing : ConfigurationUse::Present;
}

} // namespace tools

// SPDX-License-Identifier: MIT
#include "tools/check/requestcheck.h"
#include "tools/command.h"
#include "tools/config/subcommands.h"
#include "tools/preview/previewcommand.h"
#include "tools/terminal.h"

#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<tools::Command, 3> commands = {{
    {"check"_L1, "tells what is wrong with print requests"_L1, requestcheck::run},
    {"config"_L1, "the configuration: reads, checks and changes it"_L1, configtool::run},
    {"preview"_L1, "shows what will be printed, as text or as a picture"_L1, preview::run},
}};

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words.append(QFile::decodeName(argv[i]));
        // The toolkit would open another file than the one that is named.
        if (QFile::encodeName(words.last()) != argv[i]) {
            tools::printError("zentaro: the word `"_L1 + words.last() + "` is not UTF-8\n"_L1);
            return tools::Trouble;
        }
    }
    return tools::dispatch(
        {u"zentaro"_s, words, argc, argv},
        {u"The companion of zentaro-print."_s, commands, {}, u"zentaro " ZENTARO_VERSION ""_s});
}

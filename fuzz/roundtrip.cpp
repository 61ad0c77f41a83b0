// SPDX-License-Identifier: MIT
// A configuration of any bytes, read, written in both forms and read again: its tree comes back
// where no loss is named.
#include "fuzz/expect.h"
#include "tests/configfiles.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content = fuzz::content(data, size);
    for (const QString &from : {u"cfg"_s, u"xml"_s}) {
        const configtool::Outline outline = configtool::readOutline(content, from);
        const QString tree = support::treeOf(content, from);
        for (const QString &to : {u"cfg"_s, u"xml"_s}) {
            if (support::areOfTheReader(configtool::lossesInFormat(outline, to), outline))
                fuzz::expectEqual(support::treeOf(support::rewritten(content, from, to), to), tree);
        }
    }
    return 0;
}

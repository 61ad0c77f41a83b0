// SPDX-License-Identifier: MIT
// A configuration of any bytes, read, written in both forms and read again: its tree comes back
// where no loss is named, and but for the groups that the written form does not hold where these
// are all that is lost, which in the "cfg" form of a "cfg" file they always are.
#include "config/configtree.h"
#include "fuzz/expect.h"
#include "tests/configfiles.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class Tree : public libconfig::Config
{
public:
    Tree(const QByteArray &content, const QString &form) { readContent(content, u"conf"_s, form); }

    /// What stands below the file element, whose name is the file's.
    QString content() const { return configTreeText().section(u'\n', 2); }
    QDomElement top() const { return document->firstChildElement().firstChildElement(); }

    /// Takes away what is never written, the top-level groups after the first, and if asked also
    /// the groups without a member, which the "cfg" form does not give back.
    void prune(bool emptyGroups)
    {
        for (QDomNode other = top().nextSibling(); !other.isNull(); other = top().nextSibling())
            document->firstChildElement().removeChild(other);
        std::vector<QDomElement> empty;
        libconfig::walkElements(top(), [&](const QDomElement &group) {
            if (emptyGroups && !group.hasAttributes() && group.firstChildElement().isNull())
                empty.push_back(group);
            return libconfig::Walk::Into;
        });
        for (QDomElement &group : empty)
            group.parentNode().removeChild(group);
    }
};

void expectBack(const QByteArray &content, const QString &from, const QString &to)
{
    const configtool::Outline outline = configtool::readOutline(content, from);
    const std::vector<configtool::Finding> losses = configtool::lossesInFormat(outline, to);
    const bool losesGroups = std::ranges::all_of(losses, [](const configtool::Finding &loss) {
        return loss.code == "lost-group"_L1 || loss.code == "lost-duplicate"_L1;
    });
    if (!losesGroups && (from != "cfg"_L1 || to != "cfg"_L1))
        return;
    Tree tree(content, from);
    const Tree back(support::rewritten(content, from, to), to);
    if (support::areOfTheReader(losses, outline))
        fuzz::expectEqual(back.content(), tree.content());
    tree.prune(to == "cfg"_L1);
    fuzz::expectEqual(back.content(), tree.content());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content = fuzz::content(data, size);
    for (const QString &from : {u"cfg"_s, u"xml"_s}) {
        for (const QString &to : {u"cfg"_s, u"xml"_s})
            expectBack(content, from, to);
    }
    return 0;
}

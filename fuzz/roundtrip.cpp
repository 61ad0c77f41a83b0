// SPDX-License-Identifier: MIT
// A configuration of any bytes, read, written and read again: the second tree is the first one, but
// for what the written form does not hold.
#include "config/config.h"
#include "config/configtree.h"
#include "fuzz/expect.h"

#include <QRegularExpression>

#include <vector>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

class Tree : public Config
{
public:
    Tree(const QByteArray &content, const QString &form) { readContent(content, u"conf"_s, form); }

    /// What stands below the file element, whose name is the file's.
    QString content() const { return configTreeText().section(u'\n', 2); }
    bool hasSettingsOutsideGroups() const { return document->firstChildElement().hasAttributes(); }
    QDomElement top() const { return document->firstChildElement().firstChildElement(); }

    /// Takes away what is never written, the top-level groups after the first, and if asked also
    /// the groups without a member, which the "cfg" form does not give back.
    void prune(bool emptyGroups)
    {
        for (QDomNode other = top().nextSibling(); !other.isNull(); other = top().nextSibling())
            document->firstChildElement().removeChild(other);
        std::vector<QDomElement> empty;
        libconfig::walkElements(
            top(),
            [&](const QDomElement &group) {
                if (emptyGroups && !group.hasAttributes() && group.firstChildElement().isNull())
                    empty.push_back(group);
                return libconfig::Walk::Into;
            },
            [](const QDomElement &) {});
        for (QDomElement &group : empty)
            group.parentNode().removeChild(group);
    }
};

/// Whether every name and every value of the tree matches.
bool holds(const Tree &tree, const QRegularExpression &name, const QRegularExpression &value)
{
    bool all = true;
    libconfig::walkElements(
        tree.top(),
        [&](const QDomElement &group) {
            all = name.match(group.tagName()).hasMatch();
            const QDomNamedNodeMap settings = group.attributes();
            for (int i = 0; all && i < settings.count(); ++i) {
                all = name.match(settings.item(i).nodeName()).hasMatch()
                      && value.match(settings.item(i).nodeValue()).hasMatch();
            }
            return all ? libconfig::Walk::Into : libconfig::Walk::End;
        },
        [](const QDomElement &) {});
    return all;
}

/// Whether the "cfg" form holds the names and values: those of a "cfg" file it always does.
bool isCfgText(const Tree &tree)
{
    static const QRegularExpression name(uR"(\A[!-9<>-|~]*\z)"_s);
    static const QRegularExpression value(uR"(\A[^";\0\x{100}-\x{10FFFF}]*\z)"_s);
    return holds(tree, name, value);
}

/// Whether the XML form, which escapes nothing, holds them.
bool isXmlText(const Tree &tree)
{
    static const QRegularExpression name(uR"(\A[A-Za-z_][-A-Za-z0-9_.]*\z)"_s);
    static const QRegularExpression value(uR"(\A[ !#-%'-;=-~\xA1-\x{D7FF}]*\z)"_s);
    return !tree.hasSettingsOutsideGroups() && holds(tree, name, value);
}

/// Held against the tree without what is never written.
void expectBack(Tree &tree, const QString &form)
{
    const Tree again(*tree.writtenAs(form), form);
    tree.prune(form == "cfg"_L1);
    fuzz::expectEqual(again.content(), tree.content());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    for (const QString &form : {u"cfg"_s, u"xml"_s}) {
        Tree tree(fuzz::content(data, size), form);
        if (isXmlText(tree))
            expectBack(tree, u"xml"_s);
        if (form == "cfg"_L1 || isCfgText(tree))
            expectBack(tree, u"cfg"_s);
    }
    return 0;
}

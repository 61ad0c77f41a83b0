// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/elementwalk.h"

#include <cstdio>
#include <utility>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

void printText(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

QString Config::configTreeText() const
{
    const QDomDocument *const tree = grownTree();
    return "Tree \n"_L1 + configTreeText(tree ? tree->firstChildElement() : QDomElement());
}

QString Config::configTreeText(QDomNode node) const
{
    grownTree(); // no other thread changes `attributeOrder` from now on
    QString text;
    walkElements(
        node,
        [&](const QDomElement &group) {
            text += group.tagName() + u'\n';
            for (const auto &[name, value] : attributeOrder.attributesOf(group))
                text += name + " = "_L1 + value + u'\n';
            return true;
        },
        [](const QDomElement &) {});
    return text;
}

void Config::forEachSetting(
    const std::function<void(const QString &key, const QString &value)> &visit) const
{
    const QDomDocument *const tree = grownTree();
    const QDomElement file = tree ? tree->firstChildElement() : QDomElement();
    QString prefix; // of the keys in the group that is visited
    walkElements(
        file,
        [&](const QDomElement &group) {
            if (group != file)
                prefix += group.tagName() + u'.';
            for (const auto &[key, value] : attributeOrder.attributesOf(group))
                visit(prefix + key, value);
            return true;
        },
        [&](const QDomElement &group) {
            if (group != file)
                prefix.chop(group.tagName().size() + 1);
        });
}

void Config::printConfigTree() const
{
    printText(configTreeText());
}

void Config::printConfigTree(QDomNode node) const
{
    printText(configTreeText(node));
}

} // namespace libconfig

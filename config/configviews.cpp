// SPDX-License-Identifier: MIT
#include "config/configviews.h"

#include "config/configtree.h"

#include <QTreeWidget>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

class ConfigListView : public QTreeWidget
{
public:
    ConfigListView()
    {
        setColumnCount(1);
        setHeaderLabel(u"ConfigurationFile"_s);
    }
    Q_DISABLE_COPY_MOVE(ConfigListView)
    /// The innermost first, outside the view: the toolkit deletes nested items by recursion.
    ~ConfigListView() override
    {
        const QList<QTreeWidgetItem *> files = invisibleRootItem()->takeChildren();
        QList<QTreeWidgetItem *> items = files;
        for (qsizetype i = 0; i < items.size(); ++i) {
            for (int child = 0; child < items[i]->childCount(); ++child)
                items.append(items[i]->child(child));
        }
        while (!items.isEmpty())
            qDeleteAll(items.takeLast()->takeChildren());
        qDeleteAll(files);
    }
};

/// A group's item that is being turned into an element.
struct OpenGroup
{
    QTreeWidgetItem *item;
    QDomElement element;
    size_t parent; ///< its place among the groups
};

QTreeWidgetItem *newItem(ItemType type, const QString &text)
{
    auto *const item = new QTreeWidgetItem({text}, type);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

} // namespace

bool isGroupItem(const QTreeWidgetItem &item)
{
    if (item.type() == GroupItem || item.type() == SettingItem)
        return item.type() == GroupItem;
    return item.childCount() > 0 || !item.text(0).contains(u'=');
}

QString settingText(const QString &key, const QString &value) { return key + " = "_L1 + value; }

std::pair<QString, QString> settingOf(const QString &text)
{
    const qsizetype equals = text.indexOf(u'=');
    QStringView key = QStringView(text).left(equals); // all of it where there is none
    while (key.startsWith(u' '))
        key = key.sliced(1);
    while (key.endsWith(u' '))
        key.chop(1);
    const QStringView value = QStringView(text).sliced(equals < 0 ? text.size() : equals + 1);
    return {key.toString(), value.sliced(value.startsWith(u' ') ? 1 : 0).toString()};
}

QTreeWidgetItem *newGroupItem(const QString &name) { return newItem(GroupItem, name); }

QTreeWidgetItem *newSettingItem(const QString &key, const QString &value)
{
    return newItem(SettingItem, settingText(key, value));
}

QTreeWidget *Config::buildConfigListView()
{
    auto *const view = new ConfigListView;
    buildConfigListView(grownTree().document.firstChildElement(), view);
    return view;
}

void Config::buildConfigListView(QDomNode node, QTreeWidget *view)
{
    if (!view)
        return;
    const bool isFile = node.parentNode().isDocument();
    const int present = view->topLevelItemCount();
    buildConfigListView(node, view->invisibleRootItem());
    // The file's item bears its path, which is not edited here.
    QTreeWidgetItem *const added = view->topLevelItem(present);
    if (added && isFile)
        added->setFlags(added->flags() & ~Qt::ItemIsEditable);
}

void Config::buildConfigListView(QDomNode node, QTreeWidgetItem *item)
{
    if (!item)
        return;
    const ConfigTree &tree = grownTree();
    QTreeWidgetItem *open = nullptr; // outside the view until all of it is there
    walkElements(
        node,
        [&](const QDomElement &group) {
            QTreeWidgetItem *const shown = newGroupItem(group.tagName());
            for (const auto &[key, value] : tree.attributesOf(group))
                shown->addChild(newSettingItem(key, value));
            if (open)
                open->addChild(shown);
            open = shown;
            return Walk::Into;
        },
        [&](const QDomElement &) {
            if (open->parent())
                open = open->parent();
            else
                item->addChild(open);
        });
}

bool Config::loadListView(QTreeWidget *view)
{
    if (!view)
        return false;
    newTree();
    for (int i = 0; i < view->topLevelItemCount(); ++i)
        loadListView(view->topLevelItem(i), document);
    if (fileType == "cfg"_L1)
        return buildConfigFile({});
    return fileType == "xml"_L1 && buildConfigXmlFile({});
}

void Config::loadListView(QTreeWidgetItem *item, QDomDocument *parent)
{
    if (!parent)
        return;
    parent->createDocumentFragment(); // a new document is a null node until it creates something
    loadListView(item, QDomNode(*parent));
}

void Config::loadListView(QTreeWidgetItem *item, QDomNode parent)
{
    if (!item || parent.isNull())
        return;
    ConfigTree &tree = takenTree();
    const auto addSetting = [&tree](QDomElement &group, const QTreeWidgetItem &setting) {
        const auto [key, value] = settingOf(setting.text(0));
        tree.set(group, key, value);
    };
    if (!isGroupItem(*item)) {
        if (QDomElement group = parent.toElement(); !group.isNull())
            addSetting(group, *item);
        return;
    }
    QDomDocument owner = parent.ownerDocument();
    std::vector<OpenGroup> groups{{item, ConfigTree::newElement(owner, item->text(0)), 0}};
    for (size_t i = 0; i < groups.size(); ++i) {
        for (int next = 0; next < groups[i].item->childCount(); ++next) {
            QTreeWidgetItem *const child = groups[i].item->child(next);
            if (isGroupItem(*child))
                groups.push_back({child, ConfigTree::newElement(owner, child->text(0)), i});
            else
                addSetting(groups[i].element, *child);
        }
    }
    // A group joins the tree when it is complete: the toolkit walks up to the root of the tree for
    // every node and attribute that joins it.
    for (size_t i = groups.size() - 1; i > 0; --i)
        groups[groups[i].parent].element.insertBefore(groups[i].element, {}); // the first, so far
    parent.appendChild(groups.front().element);
}

} // namespace libconfig

// SPDX-License-Identifier: MIT
#include "tools/window/configtree.h"

#include "config/configviews.h"
#include "tools/knownkeys.h"

#include <QCompleter>
#include <QHash>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What may be typed for an item: the groups, or the keys of its group with values to choose from.
QStringList proposals(const QTreeWidgetItem &item)
{
    if (libconfig::isGroupItem(item))
        return tools::knownGroups() << tools::ProductGroup;
    QStringList texts;
    for (const Setting *const setting : tools::settingsOf(item.parent()->text(0))) {
        const bool isSwitch = setting->kind == SettingKind::Switch;
        for (const auto value : {"true"_L1, "false"_L1, ""_L1}) {
            if (isSwitch != value.isEmpty())
                texts << libconfig::settingText(setting->word, value);
        }
    }
    return texts;
}

Entry entryOf(const QTreeWidgetItem &item, qsizetype parent)
{
    if (libconfig::isGroupItem(item))
        return {Entry::Kind::Group, parent, item.text(0), {}, {}, {}, item.childCount() > 0, false};
    const auto [key, value] = libconfig::settingOf(item.text(0));
    return {Entry::Kind::Setting, parent, key, value, {}, {}, false, false};
}

/// Whether each entry is shown for a search.
std::vector<bool> matching(const Outline &outline, const QString &text)
{
    const size_t count = outline.entries.size();
    std::vector<bool> within(count); // it or a group above it matches
    std::vector<bool> shown(count);
    for (size_t i = 0; i < count; ++i) {
        const qsizetype parent = outline.entries[i].parent;
        within[i] = text.isEmpty() || (parent >= 0 && within[size_t(parent)])
                    || outline.pathOf(qsizetype(i)).contains(text, Qt::CaseInsensitive);
    }
    for (size_t i = count; i-- > 0;) {
        shown[i] = shown[i] || within[i];
        if (const qsizetype parent = outline.entries[i].parent; shown[i] && parent >= 0)
            shown[size_t(parent)] = true;
    }
    return shown;
}

} // namespace

/// Has an item's text typed in place, with the key words of its group to choose from.
class ConfigTree::Delegate : public QStyledItemDelegate
{
public:
    explicit Delegate(ConfigTree *tree)
        : QStyledItemDelegate(tree)
        , tree(tree)
    {
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        QTreeWidgetItem *const item = tree->itemFromIndex(index);
        tree->typed = item;
        tree->before = item->text(0);
        auto *const line = new QLineEdit(parent);
        auto *const completer = new QCompleter(proposals(*item), line);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        line->setCompleter(completer);
        connect(line, &QLineEdit::textChanged, tree, [this](const QString &text) {
            if (tree->typed)
                tree->typed->setText(0, text);
        });
        return line;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        auto *const line = qobject_cast<QLineEdit *>(editor);
        const QString text = index.data().toString();
        if (line->text() == text)
            return;
        line->setText(text);
        const qsizetype equals = text.indexOf(" = "_L1);
        if (equals > 0) // mostly the value changes; the view selects all before
            QMetaObject::invokeMethod(
                line,
                [line, begin = int(equals) + 3] { line->setSelection(begin, line->maxLength()); },
                Qt::QueuedConnection);
    }

private:
    ConfigTree *const tree;
};

ConfigTree::ConfigTree()
{
    setHeaderHidden(true);
    setItemDelegate(new Delegate(this));
    setSelectionMode(ExtendedSelection);
    setUniformRowHeights(true);
    setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto tell = [this] {
        shade({});
        changed();
    };
    connect(this, &QTreeWidget::itemChanged, this, tell);
    connect(model(), &QAbstractItemModel::rowsInserted, this, tell);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, tell);
}

void ConfigTree::take(std::unique_ptr<QTreeWidgetItem> file)
{
    changes.clear();
    shaded.clear();
    typed = nullptr;
    clear();
    addTopLevelItem(file.release());
    expandToDepth(1);
    setCurrentItem(fileItem());
}

TreeOutline ConfigTree::outlineIn(const QString &format) const
{
    TreeOutline result;
    result.outline.keepsEmptyGroups = format == "xml"_L1;
    std::vector<std::pair<QTreeWidgetItem *, qsizetype>> pending{{fileItem(), -1}};
    while (!pending.empty()) {
        const auto [item, parent] = pending.back();
        pending.pop_back();
        const auto index = qsizetype(result.items.size());
        result.outline.entries.push_back(entryOf(*item, parent));
        result.items.push_back(item);
        for (int i = item->childCount() - 1; i >= 0; --i)
            pending.emplace_back(item->child(i), index);
    }
    return result;
}

const Setting *ConfigTree::settingOf(const QTreeWidgetItem *item) const
{
    const QTreeWidgetItem *const group = item ? item->parent() : nullptr;
    if (!group || group == fileItem() || group->parent()->parent() != fileItem()
        || libconfig::isGroupItem(*item))
        return nullptr;
    return tools::findSetting(group->text(0), libconfig::settingOf(item->text(0)).first);
}

QTreeWidgetItem *ConfigTree::settingIn(const QTreeWidgetItem &group, const QString &key)
{
    for (int i = 0; i < group.childCount(); ++i) {
        QTreeWidgetItem *const item = group.child(i);
        if (!libconfig::isGroupItem(*item) && libconfig::settingOf(item->text(0)).first == key)
            return item;
    }
    return nullptr;
}

QTreeWidgetItem *ConfigTree::groupOf(const QString &name) const
{
    const QTreeWidgetItem *const product = fileItem()->child(0);
    for (int i = 0; product && i < product->childCount(); ++i) {
        QTreeWidgetItem *const item = product->child(i);
        if (libconfig::isGroupItem(*item) && item->text(0) == name)
            return item;
    }
    return nullptr;
}

void ConfigTree::showItem(QTreeWidgetItem *item)
{
    for (QTreeWidgetItem *above = item->parent(); above; above = above->parent())
        above->setExpanded(true);
    setCurrentItem(item);
    scrollToItem(item);
}

void ConfigTree::showMatching(const TreeOutline &outline, const QString &text)
{
    const std::vector<bool> shown = matching(outline.outline, text);
    for (size_t i = 0; i < shown.size(); ++i) {
        QTreeWidgetItem *const item = outline.items[i];
        if (item->isHidden() == shown[i])
            item->setHidden(!shown[i] && i > 0);
        if (shown[i] && !text.isEmpty() && item->childCount() > 0)
            item->setExpanded(true);
    }
}

void ConfigTree::mark(const TreeOutline &outline, const std::vector<Finding> &findings)
{
    QHash<QTreeWidgetItem *, tools::Severity> marks;
    for (const Finding &finding : findings) {
        tools::Severity &severity = marks[outline.items[size_t(finding.subject)]];
        severity = std::max(severity, finding.severity);
    }
    const QSignalBlocker silence(this);
    for (QTreeWidgetItem *const item : outline.items) {
        const auto found = marks.constFind(item);
        const bool isPresent = found != marks.constEnd();
        if (isPresent)
            item->setIcon(0, style()->standardIcon(*found == tools::Severity::Error
                                                       ? QStyle::SP_MessageBoxCritical
                                                       : QStyle::SP_MessageBoxWarning));
        else if (!item->icon(0).isNull())
            item->setIcon(0, {});
    }
}

void ConfigTree::shade(const QList<QTreeWidgetItem *> &items)
{
    const QSignalBlocker silence(this);
    for (QTreeWidgetItem *const item : std::as_const(shaded))
        item->setBackground(0, {});
    for (QTreeWidgetItem *const item : items)
        item->setBackground(0, QColor(255, 200, 0, 80));
    shaded = items;
}

} // namespace configtool

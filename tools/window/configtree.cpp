// SPDX-License-Identifier: MIT
#include "tools/window/configtree.h"

#include "config/configviews.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStyledItemDelegate>

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
        for (const QString &value : isSwitch ? QStringList{u"true"_s, u"false"_s} : QStringList{{}})
            texts << libconfig::settingText(setting->word, value);
    }
    return texts;
}

QString nameOf(const QTreeWidgetItem &item)
{
    return libconfig::isGroupItem(item) ? item.text(0) : libconfig::settingOf(item.text(0)).first;
}

/// Adds an item, whose entry the outline has already, and what is below it.
void addTo(TreeOutline &result, QTreeWidgetItem *item)
{
    const auto index = qsizetype(result.items.size());
    result.items.push_back(item);
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *const child = item->child(i);
        const bool isGroup = libconfig::isGroupItem(*child);
        result.outline.add(
            {.isGroup = isGroup,
             .parent = index,
             .name = nameOf(*child),
             .value = isGroup ? QString() : libconfig::settingOf(child->text(0)).second});
        addTo(result, item->child(i));
    }
}

} // namespace

/// Items that join the tree, leave it or get another text, undone and done again as one.
class ConfigTree::Change : public QUndoCommand
{
public:
    /// What is done in one `session`, -1 meaning none, is about one item. `shown` becomes the
    /// current item with the change; null means the one that changes.
    explicit Change(ConfigTree &tree, int session = -1, QTreeWidgetItem *shown = nullptr)
        : session(session)
        , tree(tree)
        , shown(shown)
    {
    }
    void setText(QTreeWidgetItem *item, const QString &text) { steps.push_back({item, text}); }
    void add(QTreeWidgetItem *item, QTreeWidgetItem *parent, int index)
    {
        steps.push_back({item, {}, parent, index, std::unique_ptr<QTreeWidgetItem>(item)});
    }
    void remove(QTreeWidgetItem *item) { steps.push_back({item, {}, item->parent()}); }
    bool isEmpty() const { return steps.empty(); }

    void redo() override { exchange(); }
    void undo() override
    {
        exchange();
        setObsolete(tree.isForgetting);
    }
    int id() const override { return session; }
    bool mergeWith(const QUndoCommand *) override
    {
        const Step &only = steps.front();
        setObsolete(!only.parent && only.item->text(0) == only.other);
        return true;
    }

    int session;

private:
    struct Step
    {
        QTreeWidgetItem *item;
        QString other;                     // the text that it does not have now
        QTreeWidgetItem *parent = nullptr; // of one that joins the tree or leaves it
        int index = 0;
        std::unique_ptr<QTreeWidgetItem> outside = {}; // `item`, while the tree does not have it
    };

    void exchange()
    {
        const Step &first = steps.front();
        // Or the view would go from item to item as they leave, and lay itself out each time.
        if (!shown && first.parent)
            tree.setCurrentItem(first.parent);
        for (Step &step : steps) {
            if (!step.parent) {
                const QString present = step.item->text(0);
                step.item->setText(0, std::exchange(step.other, present));
            } else if (step.outside) {
                step.parent->insertChild(step.index, step.outside.release());
            } else {
                step.index = step.parent->indexOfChild(step.item);
                step.outside.reset(step.parent->takeChild(step.index));
            }
        }
        std::ranges::reverse(steps); // the other way round next time
        QTreeWidgetItem *changed = first.item;
        // What stands in its place now, or the group where nothing is left.
        if (first.parent && first.outside)
            changed = first.parent->child(qMin(first.index, first.parent->childCount() - 1));
        tree.showItem(shown ? shown : changed ? changed : first.parent);
    }

    ConfigTree &tree;
    QTreeWidgetItem *const shown;
    std::vector<Step> steps;
};

/// Has an item's text typed in place, with the key words of its group to choose from.
class ConfigTree::Delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget *createEditor(QWidget *view, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        ConfigTree &tree = *static_cast<ConfigTree *>(parent());
        QTreeWidgetItem *const item = tree.itemFromIndex(index);
        tree.typed = item;
        tree.before = item->text(0);
        ++tree.session;
        auto *const line = new QLineEdit(tree.before, view);
        auto *const completer = new QCompleter(proposals(*item), line);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        line->setCompleter(completer);
        connect(line, &QLineEdit::textChanged, &tree, [&tree, item](const QString &text) {
            if (tree.typed == item)
                tree.setText(item, text);
        });
        // Mostly the value changes; the view selects all before.
        if (const qsizetype equals = tree.before.indexOf(" = "_L1); equals > 0)
            QMetaObject::invokeMethod(
                line,
                [line, begin = int(equals) + 3] { line->setSelection(begin, line->maxLength()); },
                Qt::QueuedConnection);
        return line;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        auto *const line = qobject_cast<QLineEdit *>(editor);
        if (const QString text = index.data().toString(); line->text() != text)
            line->setText(text);
    }
};

ConfigTree::ConfigTree()
{
    setHeaderHidden(true);
    setItemDelegate(new Delegate(this));
    setSelectionMode(ExtendedSelection);
    setUniformRowHeights(true);
    setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(&changes, &QUndoStack::indexChanged, this, [this] { shade({}); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this] { ++session; });
}

void ConfigTree::take(std::unique_ptr<QTreeWidgetItem> file)
{
    shaded.clear();
    typed = nullptr;
    changes.clear();
    clear();
    addTopLevelItem(file.release());
    expandToDepth(1);
    setCurrentItem(fileItem());
}

TreeOutline ConfigTree::outlineIn(const QString &format) const
{
    TreeOutline result;
    result.outline.keepsEmptyGroups = format == "xml"_L1;
    addTo(result, fileItem());
    return result;
}

const Setting *ConfigTree::settingOf(const QTreeWidgetItem *item) const
{
    return item && !libconfig::isGroupItem(*item) && groups().contains(item->parent())
               ? tools::findSetting(item->parent()->text(0), nameOf(*item))
               : nullptr;
}

QString ConfigTree::keyOf(const QTreeWidgetItem *item) const
{
    QString key = nameOf(*item);
    for (const QTreeWidgetItem *above = item->parent(); above && above != fileItem();
         above = above->parent())
        key.prepend(above->text(0) + u'.');
    return key;
}

QTreeWidgetItem *ConfigTree::childOf(const QTreeWidgetItem *group, bool isGroup,
                                     const QString &name)
{
    QTreeWidgetItem *found = nullptr;
    for (int i = 0; group && i < group->childCount() && !(found && isGroup); ++i) {
        QTreeWidgetItem *const item = group->child(i);
        if (libconfig::isGroupItem(*item) == isGroup && nameOf(*item) == name)
            found = item;
    }
    return found;
}

QList<QTreeWidgetItem *> ConfigTree::groups() const
{
    QList<QTreeWidgetItem *> found;
    const QTreeWidgetItem *const product = childOf(fileItem(), true, tools::ProductGroup);
    for (int i = 0; product && i < product->childCount(); ++i) {
        if (libconfig::isGroupItem(*product->child(i)))
            found.append(product->child(i));
    }
    return found;
}

void ConfigTree::add(QTreeWidgetItem *item)
{
    finishTyping();
    QTreeWidgetItem *group = currentItem() ? currentItem() : fileItem();
    if (!libconfig::isGroupItem(*group))
        group = group->parent();
    int index = group->indexOfChild(currentItem()) + 1; // behind the current setting
    if (libconfig::isGroupItem(*item))
        index = group->childCount();
    else if (index == 0) // or behind the last one: groups come after settings
        while (index < group->childCount() && !libconfig::isGroupItem(*group->child(index)))
            ++index;
    auto *const added = new Change(*this);
    added->add(item, group, index);
    changes.push(added);
    editItem(item);
    added->session = session; // what is typed is a part of it
}

void ConfigTree::setText(QTreeWidgetItem *item, const QString &text)
{
    if (item->text(0) == text)
        return;
    auto *const change = new Change(*this, session);
    change->setText(item, text);
    changes.push(change);
}

void ConfigTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QTreeWidgetItem *const item = std::exchange(typed, nullptr);
    const int ended = session++;
    const bool goes =
        item && (hint == QAbstractItemDelegate::RevertModelCache || item->text(0) == before);
    QTreeWidget::closeEditor(editor, hint);
    const QUndoCommand *const last = changes.command(changes.index() - 1);
    if (!goes || !last || last->id() != ended)
        return;
    isForgetting = true;
    changes.undo();
    isForgetting = false;
}

void ConfigTree::finishTyping()
{
    if (QWidget *const line = typed ? indexWidget(indexFromItem(typed)) : nullptr)
        closeEditor(line, QAbstractItemDelegate::NoHint);
}

void ConfigTree::removeSelected()
{
    finishTyping();
    auto removal = std::make_unique<Change>(*this);
    QList<QTreeWidgetItem *> chosen = selectedItems();
    std::ranges::reverse(chosen); // from the front, each would move all behind it
    for (QTreeWidgetItem *const item : std::as_const(chosen)) {
        const QTreeWidgetItem *above = item->parent();
        while (above && !above->isSelected())
            above = above->parent();
        if (item != fileItem() && !above) // with which it would go
            removal->remove(item);
    }
    if (!removal->isEmpty())
        changes.push(removal.release());
}

void ConfigTree::setValue(QTreeWidgetItem *item, const QString &value)
{
    setText(item, libconfig::settingText(nameOf(*item), value));
}

void ConfigTree::setValues(const std::vector<Value> &values)
{
    auto change = std::make_unique<Change>(*this, -1, currentItem());
    for (const auto &[group, key, value] : values) {
        QTreeWidgetItem *const present = childOf(group, false, key);
        if (!present)
            change->add(libconfig::newSettingItem(key, value), group, 0);
        else if (libconfig::settingOf(present->text(0)).second != value)
            change->setText(present, libconfig::settingText(key, value));
    }
    if (!change->isEmpty())
        changes.push(change.release());
}

void ConfigTree::setEverywhere()
{
    const Setting *const setting = settingOf(currentItem());
    if (!setting || !setting->group.isEmpty())
        return;
    const auto [key, value] = libconfig::settingOf(currentItem()->text(0));
    std::vector<Value> values;
    for (QTreeWidgetItem *const group : groups()) {
        if (tools::isDocumentGroup(group->text(0)) && tools::findSetting(group->text(0), key))
            values.push_back({group, key, value});
    }
    setValues(values);
}

void ConfigTree::showItem(QTreeWidgetItem *item)
{
    for (QTreeWidgetItem *above = item->parent(); above; above = above->parent())
        above->setExpanded(true);
    setCurrentItem(item);
    scrollToItem(item);
}

/// Shows what matches in and below an item; answers whether something does.
bool ConfigTree::showWhere(QTreeWidgetItem *item, const QString &key, const QString &text,
                           bool isWithin)
{
    isWithin = isWithin || key.contains(text, Qt::CaseInsensitive);
    bool isShown = isWithin;
    for (int i = 0; i < item->childCount(); ++i) {
        const QString name = isWithin ? QString() : nameOf(*item->child(i));
        isShown |=
            showWhere(item->child(i), key.isEmpty() ? name : key + u'.' + name, text, isWithin);
    }
    if (item->isHidden() == isShown)
        item->setHidden(!isShown && item != fileItem());
    if (isShown && !text.isEmpty() && item->childCount() > 0)
        item->setExpanded(true);
    return isShown;
}

void ConfigTree::shade(const QList<QTreeWidgetItem *> &items)
{
    for (QTreeWidgetItem *const item : std::as_const(shaded))
        item->setBackground(0, {});
    for (QTreeWidgetItem *const item : items)
        item->setBackground(0, QColor(255, 200, 0, 80));
    shaded = items;
}

} // namespace configtool

// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "tools/window/itemdelegate.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::StandardButton askInBox(QWidget *parent, const QString &text, const QString &details,
                                     QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Warning, u"Configuration"_s, text, buttons, parent);
    box.setInformativeText(details);
    return QMessageBox::StandardButton(box.exec());
}

} // namespace

ConfigEditor::ConfigEditor()
    : ask(
        [this](const QString &text, const QString &details, QMessageBox::StandardButtons buttons) {
            return askInBox(this, text, details, buttons);
        })
{
    constexpr int Pause = 150; // milliseconds
    pause.setSingleShot(true);
    pause.setInterval(Pause);
    connect(&pause, &QTimer::timeout, this, &ConfigEditor::listFindings);
    connect(&undoStack, &QUndoStack::indexChanged, this, &ConfigEditor::treeChanged);
    connect(&undoStack, &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
    buildWindow();
    buildActions();
}

ConfigEditor::~ConfigEditor()
{
    undoStack.disconnect(this);
    dropTree();
}

void ConfigEditor::buildWindow()
{
    auto *const center = new QWidget;
    auto *const layout = new QVBoxLayout(center);
    searchLine = new QLineEdit;
    searchLine->setPlaceholderText(u"Search keys (Ctrl+F)"_s);
    searchLine->setClearButtonEnabled(true);
    connect(searchLine, &QLineEdit::textChanged, this, &ConfigEditor::search);
    connect(searchLine, &QLineEdit::returnPressed, this, [this] { tree->setFocus(); });
    hint =
        new QLabel(u"There are no settings yet. Add a group first: the settings of the suite all "
                   u"stand in one called \u201czentaro\u201d.\n\u201czentaro config init\u201d "
                   u"writes a complete configuration to start from."_s);
    hint->setWordWrap(true);
    splitter = new QSplitter;
    splitter->addWidget(buildFindingsPane());
    layout->addWidget(searchLine);
    layout->addWidget(hint);
    layout->addWidget(splitter, 1);
    setCentralWidget(center);
    resize(960, 640);
}

QWidget *ConfigEditor::buildFindingsPane()
{
    auto *const pane = new QWidget;
    auto *const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    findingsTitle = new QLabel;
    findings = new QListWidget;
    findings->setWordWrap(true);
    findings->setIconSize({16, 16});
    findings->setResizeMode(QListView::Adjust);
    connect(findings, &QListWidget::currentRowChanged, this, &ConfigEditor::showFinding);
    connect(findings, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *row) { showFinding(findings->row(row)); });
    layout->addWidget(findingsTitle);
    layout->addWidget(findings);
    return pane;
}

void ConfigEditor::buildActions()
{
    QMenu *const file = menuBar()->addMenu(u"&File"_s);
    addEntry(file, u"&Open…"_s, QStyle::SP_DialogOpenButton, QKeySequence::Open,
             [this] { chooseFile(); });
    QAction *const saving = addEntry(file, u"&Save"_s, QStyle::SP_DialogSaveButton,
                                     QKeySequence::Save, [this] { save(); });
    file->addSeparator();
    addEntry(file, u"&Quit"_s, QStyle::SP_DialogCloseButton, QKeySequence(u"Ctrl+Q"_s),
             [this] { close(); });

    QMenu *const edit = menuBar()->addMenu(u"&Edit"_s);
    QAction *const undo = undoStack.createUndoAction(this, u"&Undo"_s);
    QAction *const redo = undoStack.createRedoAction(this, u"&Redo"_s);
    undo->setShortcut(QKeySequence::Undo);
    redo->setShortcut(QKeySequence::Redo);
    undo->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    redo->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    edit->addActions({undo, redo});
    edit->addSeparator();
    QAction *const setting = addEntry(edit, u"Add &Setting"_s, QStyle::SP_FileIcon,
                                      QKeySequence(u"Ins"_s), [this] { addSetting(); });
    QAction *const group = addEntry(edit, u"Add &Group"_s, QStyle::SP_FileDialogNewFolder,
                                    QKeySequence(u"Ctrl+G"_s), [this] { addGroup(); });
    addEntry(edit, u"&Change"_s, QStyle::SP_FileDialogDetailedView, QKeySequence(u"F2"_s),
             [this] { tree->editItem(tree->currentItem()); });
    addEntry(edit, u"Switch &On or Off"_s, QStyle::SP_DialogApplyButton, QKeySequence(u"Ctrl+T"_s),
             [this] { toggleSwitch(); });
    QAction *const remove = addEntry(edit, u"Re&move"_s, QStyle::SP_TrashIcon, QKeySequence::Delete,
                                     [this] { removeSelected(); });
    edit->addSeparator();
    addEntry(edit, u"&Find"_s, QStyle::SP_FileDialogContentsView, QKeySequence::Find, [this] {
        searchLine->setFocus();
        searchLine->selectAll();
    });
    addEntry(edit, u"&Next Finding"_s, QStyle::SP_ArrowDown, QKeySequence(u"F8"_s), [this] {
        if (findings->count() > 0)
            findings->setCurrentRow((findings->currentRow() + 1) % findings->count());
    });

    QToolBar *const bar = addToolBar(u"Tools"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({saving, undo, redo, setting, group, remove});
}

QAction *ConfigEditor::addEntry(QMenu *menu, const QString &text, QStyle::StandardPixmap icon,
                                const QKeySequence &shortcut, const std::function<void()> &run)
{
    QAction *const action = menu->addAction(style()->standardIcon(icon), text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, run);
    return action;
}

/// Deletes the view; a line in which an item is edited closes without being heard.
void ConfigEditor::dropTree()
{
    if (delegate)
        delegate->disconnect(this);
    delete tree;
    tree = nullptr;
    delegate = nullptr;
}

/// Puts a new view in the place of the present one.
void ConfigEditor::takeTree(QTreeWidget *view)
{
    dropTree();
    tree = view;
    delegate = new ItemDelegate(tree);
    delegate->entered = [this](QTreeWidgetItem *item, const QString &text) { enter(item, text); };
    delegate->typed = [this](QTreeWidgetItem *item, const QString &text) {
        typing = {item, text};
        treeChanged();
    };
    tree->setItemDelegate(delegate);
    // Behind the view's own connection: the line is gone when the item may have to go.
    connect(delegate, &QAbstractItemDelegate::closeEditor, this, &ConfigEditor::endEditing);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setUniformRowHeights(true);
    tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                          | QAbstractItemView::SelectedClicked);
    splitter->insertWidget(0, tree);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    tree->expandToDepth(1);
    tree->setCurrentItem(tree->topLevelItem(0));
    tree->setFocus();
}

void ConfigEditor::updateHint()
{
    hint->setVisible(tree && fileItem()->childCount() == 0);
}

} // namespace configtool

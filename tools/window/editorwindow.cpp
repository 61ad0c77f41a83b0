// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "config/configviews.h"
#include "tools/window/settingpane.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSplitter>
#include <QToolBar>

namespace configtool {

using namespace Qt::StringLiterals;

ConfigEditor::ConfigEditor()
    : searchLine(new QLineEdit)
    , tree(new ConfigTree)
    , setting(new SettingPane(*tree))
    , paper(new PaperPane(*tree))
    , findingsTitle(new QLabel)
    , findings(new QListWidget)
{
    constexpr int Pause = 150; // milliseconds
    pause.setSingleShot(true);
    pause.setInterval(Pause);
    drawing.setSingleShot(true);
    buildWindow();
    buildMenus();

    connect(&pause, &QTimer::timeout, this, &ConfigEditor::listFindings);
    connect(&drawing, &QTimer::timeout, setting, &SettingPane::showCurrent);
    connect(&drawing, &QTimer::timeout, paper, &PaperPane::draw);
    for (QTimer *const timer : {&pause, &drawing})
        connect(&tree->changes, &QUndoStack::indexChanged, timer, qOverload<>(&QTimer::start));
    connect(&tree->changes, &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
    connect(tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        setting->showCurrent();
        if (item)
            paper->follow((libconfig::isGroupItem(*item) ? item : item->parent())->text(0));
    });
    connect(tree, &QTreeWidget::itemActivated, setting, &SettingPane::focusEditor);
    connect(searchLine, &QLineEdit::textChanged, tree, &ConfigTree::showMatching);
    connect(searchLine, &QLineEdit::returnPressed, tree, qOverload<>(&QWidget::setFocus));
    connect(findings, &QListWidget::currentRowChanged, this, &ConfigEditor::showFinding);
    connect(findings, &QListWidget::clicked, this,
            [this](const QModelIndex &row) { showFinding(row.row()); });
}

void ConfigEditor::buildWindow()
{
    searchLine->setPlaceholderText(tr("Search keys (Ctrl+F)"));
    searchLine->setClearButtonEnabled(true);
    findings->setWordWrap(true);
    findings->setIconSize({16, 16});
    findings->setResizeMode(QListView::Adjust);

    auto *const below = new QWidget;
    auto *const lower = new QVBoxLayout(below);
    lower->setContentsMargins({});
    lower->addWidget(setting);
    lower->addWidget(findingsTitle);
    lower->addWidget(findings, 1);
    auto *const halves = new QSplitter(Qt::Vertical);
    halves->addWidget(tree);
    halves->addWidget(below);
    halves->setStretchFactor(0, 1);

    auto *const center = new QWidget;
    auto *const layout = new QVBoxLayout(center);
    auto *const columns = new QSplitter;
    columns->addWidget(halves);
    columns->addWidget(paper);
    columns->setStretchFactor(0, 1);
    columns->setStretchFactor(1, 1);
    layout->addWidget(searchLine);
    layout->addWidget(columns, 1);
    setCentralWidget(center);
    resize(1'040, 760);
}

void ConfigEditor::buildMenus()
{
    using enum QStyle::StandardPixmap;
    constexpr double Step = 1.25; // of zooming
    const auto add = [this](QMenu *menu, const QString &text, QStyle::StandardPixmap icon,
                            const QKeySequence &shortcut, auto run) {
        return menu->addAction(style()->standardIcon(icon), text, shortcut, this, run);
    };
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    add(file, tr("&Open…"), SP_DialogOpenButton, QKeySequence::Open, &ConfigEditor::chooseFile);
    QAction *const saving =
        add(file, tr("&Save"), SP_DialogSaveButton, QKeySequence::Save, &ConfigEditor::save);
    add(file, tr("Save &As…"), SP_DialogSaveButton, u"Ctrl+Shift+S"_s, &ConfigEditor::chooseTarget);
    file->addSeparator();
    add(file, tr("&Quit"), SP_DialogCloseButton, u"Ctrl+Q"_s, &ConfigEditor::close);

    QMenu *const edit = menuBar()->addMenu(tr("&Edit"));
    QAction *const undo = add(edit, tr("&Undo"), SP_ArrowBack, QKeySequence::Undo,
                              [this] { tree->finishTyping(), tree->changes.undo(); });
    QAction *const redo = add(edit, tr("&Redo"), SP_ArrowForward, QKeySequence::Redo,
                              [this] { tree->finishTyping(), tree->changes.redo(); });
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(&tree->changes, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&tree->changes, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    edit->addSeparator();
    const auto addItem = [this](QTreeWidgetItem *item) { searchLine->clear(), tree->add(item); };
    const QList<QAction *> ofItems = {
        add(edit, tr("Add &Setting"), SP_FileIcon, u"Ins"_s,
            [addItem] { addItem(libconfig::newSettingItem({}, {})); }),
        add(edit, tr("Add &Group"), SP_FileDialogNewFolder, u"Ctrl+G"_s,
            [addItem] { addItem(libconfig::newGroupItem({})); }),
        add(edit, tr("Ren&ame"), SP_FileDialogDetailedView, u"F2"_s,
            [this] { tree->editItem(tree->currentItem()); }),
        add(edit, tr("Change &Value"), SP_FileDialogContentsView, u"F3"_s,
            [this] { setting->focusEditor(); }),
        add(edit, tr("Switch &On or Off"), SP_DialogApplyButton, u"Ctrl+T"_s,
            [this] { setting->toggleSwitch(); }),
        add(edit, tr("Set &Everywhere"), SP_DialogYesToAllButton, u"Ctrl+E"_s,
            [this] { tree->setEverywhere(); }),
        add(edit, tr("Re&move"), SP_TrashIcon, QKeySequence::Delete,
            [this] { tree->removeSelected(); })};
    tree->addActions(ofItems);
    edit->addSeparator();
    add(edit, tr("&Find"), SP_FileDialogContentsView, QKeySequence::Find,
        [this] { searchLine->setFocus(), searchLine->selectAll(); });
    add(edit, tr("&Next Finding"), SP_ArrowDown, u"F8"_s, [this] {
        findings->setCurrentRow((findings->currentRow() + 1) % qMax(findings->count(), 1));
    });

    QMenu *const menu = menuBar()->addMenu(tr("&Paper"));
    add(menu, tr("Open a &Print Request…"), SP_DialogOpenButton, u"Ctrl+P"_s,
        &ConfigEditor::chooseRequest);
    add(menu, tr("Zoom &In"), SP_ArrowUp, QKeySequence::ZoomIn, [this] { paper->zoomBy(Step); });
    add(menu, tr("Zoom &Out"), SP_ArrowDown, QKeySequence::ZoomOut,
        [this] { paper->zoomBy(1 / Step); });

    QToolBar *const bar = addToolBar(tr("Tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({saving, undo, redo, ofItems[0], ofItems[1], ofItems.last()});
}

} // namespace configtool

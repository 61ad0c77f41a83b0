// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "tools/window/paperpane.h"
#include "tools/window/settingpane.h"

#include <QAction>
#include <QDir>
#include <QLabel>
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
    , setting(new SettingPane)
    , paper(new PaperPane(*tree))
    , hint(new QLabel)
    , findingsTitle(new QLabel)
    , findings(new QListWidget)
    , ask([this](const QString &text, const QString &details,
                 QMessageBox::StandardButtons buttons) {
        QMessageBox box(QMessageBox::Warning, tr("Configuration"), text, buttons, this);
        box.setInformativeText(details);
        box.setTextFormat(Qt::PlainText);
        return QMessageBox::StandardButton(box.exec());
    })
{
    constexpr int Pause = 150; // milliseconds
    pause.setSingleShot(true);
    pause.setInterval(Pause);
    drawing.setSingleShot(true);
    drawing.setInterval(0);
    buildWindow();
    buildFileMenu();
    buildEditMenu();
    buildPaperMenu();

    connect(&pause, &QTimer::timeout, this, &ConfigEditor::listFindings);
    connect(&drawing, &QTimer::timeout, this, &ConfigEditor::showSetting);
    connect(&drawing, &QTimer::timeout, paper, &PaperPane::draw);
    connect(&tree->changes, &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
    connect(tree, &QTreeWidget::currentItemChanged, this, &ConfigEditor::currentChanged);
    connect(tree, &QTreeWidget::itemActivated, setting, &SettingPane::focusEditor);
    connect(searchLine, &QLineEdit::textChanged, this, &ConfigEditor::listFindings);
    connect(searchLine, &QLineEdit::returnPressed, tree, qOverload<>(&QWidget::setFocus));
    connect(findings, &QListWidget::currentRowChanged, this, &ConfigEditor::showFinding);
    connect(findings, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *row) { showFinding(findings->row(row)); });
    tree->changed = [this] { treeChanged(); };
    setting->edited = [this](const QString &value) { edit(value); };
    setting->translations = [this] { return languages(); };
    setting->spread = [this] { tree->setEverywhere(); };
}

void ConfigEditor::buildWindow()
{
    searchLine->setPlaceholderText(tr("Search keys (Ctrl+F)"));
    searchLine->setClearButtonEnabled(true);
    hint->setWordWrap(true);
    hint->setTextFormat(Qt::PlainText);
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
    layout->addWidget(hint);
    layout->addWidget(columns, 1);
    setCentralWidget(center);
    resize(1'040, 760);
}

void ConfigEditor::buildFileMenu()
{
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    addEntry(file, tr("&Open…"), QStyle::SP_DialogOpenButton, QKeySequence::Open,
             [this] { chooseFile(); });
    QAction *const saving = addEntry(file, tr("&Save"), QStyle::SP_DialogSaveButton,
                                     QKeySequence::Save, [this] { save(); });
    addEntry(file, tr("Save &As…"), QStyle::SP_DialogSaveButton, QKeySequence(u"Ctrl+Shift+S"_s),
             [this] { chooseTarget(); });
    file->addSeparator();
    addEntry(file, tr("&Quit"), QStyle::SP_DialogCloseButton, QKeySequence(u"Ctrl+Q"_s),
             [this] { close(); });
    QToolBar *const bar = addToolBar(tr("Tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(saving);
}

void ConfigEditor::buildEditMenu()
{
    QMenu *const edit = menuBar()->addMenu(tr("&Edit"));
    QUndoStack &changes = tree->changes;
    QAction *const undo = addEntry(edit, tr("&Undo"), QStyle::SP_ArrowBack, QKeySequence::Undo,
                                   [this, &changes] { tree->finishTyping(), changes.undo(); });
    QAction *const redo = addEntry(edit, tr("&Redo"), QStyle::SP_ArrowForward, QKeySequence::Redo,
                                   [this, &changes] { tree->finishTyping(), changes.redo(); });
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(&changes, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&changes, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    edit->addSeparator();
    const QList<QAction *> ofItems = {
        addEntry(edit, tr("Add &Setting"), QStyle::SP_FileIcon, QKeySequence(u"Ins"_s),
                 [this] { searchLine->clear(), tree->addSetting(); }),
        addEntry(edit, tr("Add &Group"), QStyle::SP_FileDialogNewFolder, QKeySequence(u"Ctrl+G"_s),
                 [this] { searchLine->clear(), tree->addGroup(); }),
        addEntry(edit, tr("Ren&ame"), QStyle::SP_FileDialogDetailedView, QKeySequence(u"F2"_s),
                 [this] { tree->editItem(tree->currentItem()); }),
        addEntry(edit, tr("Change &Value"), QStyle::SP_FileDialogContentsView,
                 QKeySequence(u"F3"_s), [this] { setting->focusEditor(); }),
        addEntry(edit, tr("Switch &On or Off"), QStyle::SP_DialogApplyButton,
                 QKeySequence(u"Ctrl+T"_s), [this] { tree->toggleSwitch(); }),
        addEntry(edit, tr("Set &Everywhere"), QStyle::SP_DialogYesToAllButton,
                 QKeySequence(u"Ctrl+E"_s), [this] { tree->setEverywhere(); }),
        addEntry(edit, tr("Re&move"), QStyle::SP_TrashIcon, QKeySequence::Delete,
                 [this] { tree->removeSelected(); })};
    tree->addActions(ofItems);
    edit->addSeparator();
    addEntry(edit, tr("&Find"), QStyle::SP_FileDialogContentsView, QKeySequence::Find, [this] {
        searchLine->setFocus();
        searchLine->selectAll();
    });
    addEntry(edit, tr("&Next Finding"), QStyle::SP_ArrowDown, QKeySequence(u"F8"_s), [this] {
        if (findings->count() > 0)
            findings->setCurrentRow((findings->currentRow() + 1) % findings->count());
    });
    findChild<QToolBar *>()->addActions({undo, redo, ofItems[0], ofItems[1], ofItems.last()});
}

void ConfigEditor::buildPaperMenu()
{
    constexpr double Step = 1.25;
    QMenu *const menu = menuBar()->addMenu(tr("&Paper"));
    addEntry(menu, tr("Open a &Print Request…"), QStyle::SP_DialogOpenButton,
             QKeySequence(u"Ctrl+P"_s), [this] { chooseRequest(); });
    addEntry(menu, tr("Zoom &In"), QStyle::SP_ArrowUp, QKeySequence::ZoomIn,
             [this] { paper->zoomBy(Step); });
    addEntry(menu, tr("Zoom &Out"), QStyle::SP_ArrowDown, QKeySequence::ZoomOut,
             [this] { paper->zoomBy(1 / Step); });
}

QAction *ConfigEditor::addEntry(QMenu *menu, const QString &text, QStyle::StandardPixmap icon,
                                const QKeySequence &shortcut, const std::function<void()> &run)
{
    QAction *const action = menu->addAction(style()->standardIcon(icon), text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, run);
    return action;
}

} // namespace configtool

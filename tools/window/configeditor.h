// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/source.h"
#include "tools/window/editedfile.h"
#include "tools/window/treeoutline.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QStyle>
#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

namespace configtool {

class ItemDelegate;

/// The window in which a configuration is edited: its tree, a search field above it, and beside it
/// what is wrong with it, as one types.
class ConfigEditor : public QMainWindow
{
public:
    /// Asks the person something, or tells, and answers one of the buttons.
    using Ask = std::function<QMessageBox::StandardButton(
        const QString &text, const QString &details, QMessageBox::StandardButtons buttons)>;

    ConfigEditor();
    ConfigEditor(const ConfigEditor &) = delete;
    ConfigEditor &operator=(const ConfigEditor &) = delete;
    ~ConfigEditor() override;

    /// Shows another file; a file that does not exist yet shows empty. A file that cannot be read
    /// is told and answers false.
    bool open(const Source &file);
    /// Writes the file in its own format, after a word with the person when something would be lost
    /// by it. False when it was not written.
    bool save();

    // The edits; each can be undone.

    /// Adds a setting to the current group, or a group to it, and begins to edit it.
    void addSetting();
    void addGroup();
    /// Removes the selected items.
    void removeSelected();
    /// Turns the current setting from true to false or the other way.
    void toggleSwitch();

    /// Shows only what matches the text.
    void search(const QString &text);
    /// Lists what is wrong, at once; otherwise it is listed a moment after each change.
    void listFindings();

    /// Another way to ask than a message box.
    void setAsk(Ask way) { ask = std::move(way); }
    QTreeWidget *treeView() const { return tree; }
    QListWidget *findingsView() const { return findings; }
    QLineEdit *searchField() const { return searchLine; }
    QUndoStack &changes() { return undoStack; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildWindow();
    QWidget *buildFindingsPane();
    void buildActions();
    QAction *addEntry(QMenu *menu, const QString &text, QStyle::StandardPixmap icon,
                      const QKeySequence &shortcut, const std::function<void()> &run);
    void takeTree(QTreeWidget *view);
    void dropTree();

    void chooseFile();
    bool confirmLeaving();
    bool confirmLosses();
    bool confirmReplacing();

    QTreeWidgetItem *fileItem() const;
    QTreeWidgetItem *currentGroup() const;
    void addAndEdit(const QString &what, std::unique_ptr<QTreeWidgetItem> item, int index);
    void enter(QTreeWidgetItem *item, const QString &text);
    void endEditing();
    void showItem(QTreeWidgetItem *item);
    void showFinding(int row);
    void treeChanged();
    void applySearch();
    void updateHint();

    Source source;
    QByteArray written;              ///< the file's content as it was last read or written
    std::vector<Finding> fileFaults; ///< of the file as it was read
    std::vector<Finding> fileLosses; ///< what reading it lost
    std::unique_ptr<EditedFile> store;

    QSplitter *splitter;
    QLineEdit *searchLine;
    QTreeWidget *tree = nullptr;
    QLabel *hint; ///< what to do with an empty tree
    QLabel *findingsTitle;
    QListWidget *findings;
    ItemDelegate *delegate = nullptr;

    QUndoStack undoStack;
    bool isAdding = false;  ///< a new item is being edited, in an open macro
    bool isEntered = false; ///< its text has been entered
    Typing typing;
    TreeOutline listed; ///< what the findings are about; empty when it has changed since
    QTimer pause;       ///< after a change, before the findings are listed
    Ask ask;
};

} // namespace configtool

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/configcommand.h"
#include "tools/window/paperpane.h"

#include <QMainWindow>
#include <QMessageBox>

class QLabel;
class QLineEdit;
class QListWidget;

namespace configtool {

class SettingPane;

/// The window in which a configuration is edited: its tree with a search field above it, what the
/// current setting is for and an editor that fits it, what is wrong, and a document as it would be
/// printed, as one types.
class ConfigEditor : public QMainWindow
{
    Q_DECLARE_TR_FUNCTIONS(ConfigEditor)

public:
    ConfigEditor();

    /// Shows another file; a file that does not exist yet shows empty. A file that cannot be read
    /// is told and answers false.
    bool open(const Source &file);
    /// Writes the file in its own format, after a word with the person when something would be lost
    /// by it. False when it was not written.
    bool save() { return saveTo(source); }
    /// The same under another name, which the window has from then on.
    bool saveTo(const Source &target);

    /// Lists what is wrong, at once; otherwise it is listed a moment after each change.
    void listFindings();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildWindow();
    void buildMenus();

    QMessageBox::StandardButton ask(const QString &text, const QString &details,
                                    QMessageBox::StandardButtons buttons);
    bool refuse(const QString &text, const QString &details);
    void chooseFile();
    void chooseTarget();
    void chooseRequest();
    bool confirmLeaving();
    bool confirmSaving(const Source &target);
    void nameFile(const Source &file);
    void showFinding(int row);

    Source source;
    QByteArray written; ///< the file's content as it was last read or written
    Outline asRead;     ///< the file when it was opened; none once it is written

    QLineEdit *const searchLine;
    ConfigTree *const tree;
    SettingPane *const setting;
    PaperPane *const paper;
    QLabel *const findingsTitle;
    QListWidget *const findings;

    QList<QTreeWidgetItem *> subjects; ///< of the rows of findings; null of the file's faults
    QTimer pause;                      ///< after a change, before the findings are listed
    QTimer drawing;                    ///< draws the paper when all of a change is there
};

} // namespace configtool

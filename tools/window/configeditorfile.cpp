// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "config/configviews.h"
#include "tools/config/losses.h"
#include "tools/terminal.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStatusBar>
#include <QTreeWidget>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString listOf(const std::vector<Finding> &findings)
{
    constexpr size_t Most = 12; // lines in a box
    QStringList lines;
    for (size_t i = 0; i < findings.size() && i < Most; ++i)
        lines.append(u"• "_s + findings[i].text);
    if (findings.size() > Most)
        lines.append(QString::number(findings.size() - Most) + " more"_L1);
    return lines.join(u'\n');
}

} // namespace

bool ConfigEditor::open(const Source &file)
{
    QFile present(file.path);
    const QFileInfo info(present);
    if (info.exists() && (!info.isFile() || info.size() > MaxContentBytes)) {
        ask(file.path + " cannot be edited."_L1,
            info.isFile() ? u"It has more than 64 MiB."_s : u"It is not a file."_s,
            QMessageBox::Ok);
        return false;
    }
    if (present.exists() && !present.open(QIODevice::ReadOnly)) {
        ask(file.path + " cannot be read."_L1, present.errorString(), QMessageBox::Ok);
        return false;
    }
    const QByteArray content = present.isOpen() ? present.readAll() : QByteArray();
    Outline outline = readOutline(content, file.format);
    if (nestsTooDeep(outline)) {
        ask(file.path + " cannot be edited."_L1, u"Its groups stand too deep within each other."_s,
            QMessageBox::Ok);
        return false;
    }
    undoStack.clear();
    listed = {};
    source = file;
    written = content;
    fileFaults = std::move(outline.faults);
    fileLosses = std::move(outline.losses);
    store = std::make_unique<EditedFile>(source);
    QTreeWidget *const view = store->newConfigListView();
    if (view->topLevelItemCount() == 0) {
        QTreeWidgetItem *const item = libconfig::newGroupItem(source.path);
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        view->addTopLevelItem(item);
    }
    takeTree(view);
    setWindowTitle(QFileInfo(source.path).fileName() + "[*] – Configuration"_L1);
    updateHint();
    listFindings();
    return true;
}

void ConfigEditor::chooseFile()
{
    if (!confirmLeaving())
        return;
    const QString path =
        QFileDialog::getOpenFileName(this, u"Open"_s, QFileInfo(source.path).path());
    if (!path.isEmpty())
        open({path, formatOf(path)});
}

bool ConfigEditor::save()
{
    tree->setFocus(); // what is being edited is entered
    if (!confirmReplacing() || !confirmLosses())
        return false;
    QDir().mkpath(QFileInfo(source.path).path());
    if (!store->loadListView(tree)) {
        ask(source.path + " could not be written."_L1, u"The file is as it was."_s,
            QMessageBox::Ok);
        return false;
    }
    written = contentOfFile(source.path);
    fileFaults.clear();
    fileLosses.clear();
    undoStack.setClean();
    listFindings();
    statusBar()->showMessage("Saved "_L1 + source.path, 5'000);
    return true;
}

/// Whether a file may be replaced that another program has changed meanwhile.
bool ConfigEditor::confirmReplacing()
{
    if (contentOfFile(source.path) == written)
        return true;
    return ask(source.path + " has changed since it was opened."_L1,
               u"Saving replaces it with what this window shows."_s,
               QMessageBox::Save | QMessageBox::Cancel)
           == QMessageBox::Save;
}

/// Whether a file may be written that lacks something.
bool ConfigEditor::confirmLosses()
{
    std::vector<Finding> lost = fileLosses;
    const std::vector<Finding> more =
        lossesInFormat(outlineOf(*tree, source.format, {}).outline, source.format);
    lost.insert(lost.end(), more.begin(), more.end());
    return lost.empty()
           || ask(u"The file that is written will lack something:"_s, listOf(lost),
                  QMessageBox::Save | QMessageBox::Cancel)
                  == QMessageBox::Save;
}

/// Whether the present file may be left, saved or not.
bool ConfigEditor::confirmLeaving()
{
    tree->setFocus();
    if (undoStack.isClean())
        return true;
    const auto answer =
        ask(QFileInfo(source.path).fileName() + " has changes that are not saved."_L1, {},
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void ConfigEditor::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!tree || confirmLeaving());
}

} // namespace configtool

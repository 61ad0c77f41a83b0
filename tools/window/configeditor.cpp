// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "config/configviews.h"
#include "text/standardoutput.h"
#include "tools/companion.h"
#include "tools/config/settingcheck.h"
#include "tools/terminal.h"
#include "tools/window/paperpane.h"
#include "tools/window/settingpane.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStatusBar>

#include <cerrno>
#include <unistd.h>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

constexpr int SubjectRole = Qt::UserRole; // of a finding's row: the entry it is about

/// The store of a file, empty until it is read: it need not be there yet.
class EditedFile : public libconfig::Config
{
public:
    explicit EditedFile(const Source &source)
    {
        fileName = source.path;
        fileType = source.format;
    }
};

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Why the file cannot be written, or made where it is missing; empty when it can.
QString whyUnwritable(const QString &path)
{
    QFileInfo place(path);
    while (!place.exists() && place.path() != place.filePath())
        place.setFile(place.path());
    if (place.filePath() != path && !place.isDir())
        return qt_error_string(ENOTDIR);
    return access(QFile::encodeName(place.filePath()).constData(), W_OK) == 0
               ? QString()
               : qt_error_string(errno);
}

QString listOf(const std::vector<Finding> &findings)
{
    constexpr size_t Most = 12; // lines in a box
    QStringList lines;
    for (size_t i = 0; i < findings.size() && i < Most; ++i)
        lines.append(u"• "_s + findings[i].text);
    if (findings.size() > Most)
        lines.append(ConfigEditor::tr("and %1 more").arg(findings.size() - Most));
    return lines.join(u'\n');
}

} // namespace

bool ConfigEditor::refuse(const QString &text, const QString &details)
{
    ask(text, details, QMessageBox::Ok);
    return false;
}

bool ConfigEditor::open(const Source &file)
{
    QFile present(file.path);
    const QFileInfo info(present);
    const QString trouble = tr("%1 cannot be edited.").arg(file.path);
    if (info.exists() && !info.isFile())
        return refuse(trouble, tr("It is not a file."));
    if (info.size() > MaxContentBytes)
        return refuse(trouble, tr("It has more than 64 MiB."));
    if (info.exists() && !present.open(QIODevice::ReadOnly))
        return refuse(tr("%1 cannot be read.").arg(file.path), present.errorString());
    const QByteArray content = present.isOpen() ? present.readAll() : QByteArray();
    Outline outline = readOutline(content, file.format);
    if (nestsTooDeep(outline))
        return refuse(trouble, tr("Its groups stand too deep within each other."));
    written = content;
    fileFaults = std::move(outline.faults);
    fileLosses = std::move(outline.losses);
    EditedFile stored(file);
    if (info.exists())
        stored.readFile(file.path, file.format);
    const std::unique_ptr<QTreeWidget> view(stored.newConfigListView());
    std::unique_ptr<QTreeWidgetItem> item(view->takeTopLevelItem(0));
    if (!item) {
        item.reset(libconfig::newGroupItem(file.path));
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    }
    tree->take(std::move(item));
    nameFile(file);
    listFindings();
    tree->setFocus();
    return true;
}

void ConfigEditor::nameFile(const Source &file)
{
    source = file;
    tree->fileItem()->setText(0, file.path);
    setWindowTitle(u"%1[*] - %2"_s.arg(QFileInfo(file.path).fileName(), tr("Configuration")));
    updateHint();
}

void ConfigEditor::chooseFile()
{
    if (!confirmLeaving())
        return;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open"), QFileInfo(source.path).path());
    if (!path.isEmpty())
        open({path, formatOf(path)});
}

void ConfigEditor::chooseTarget()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save As"), source.path);
    if (!path.isEmpty())
        saveTo({path, formatOf(path)});
}

void ConfigEditor::chooseRequest()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a Print Request"));
    if (path.isEmpty())
        return;
    if (const QString fault = paper->openRequest(path); !fault.isEmpty())
        refuse(tr("%1 cannot be shown.").arg(path), fault);
}

bool ConfigEditor::saveTo(const Source &target)
{
    tree->finishTyping();
    if (!confirmSaving(target))
        return false;
    QDir().mkpath(QFileInfo(target.path).path());
    const text::LineSink quiet(text::LineSink::drop); // the box tells
    if (!EditedFile(target).loadListView(tree))
        return refuse(tr("%1 could not be written.").arg(target.path), whyUnwritable(target.path));
    written = contentOfFile(target.path);
    fileFaults.clear();
    fileLosses.clear();
    tree->changes.setClean();
    nameFile(target);
    listFindings();
    statusBar()->showMessage(tr("Saved %1").arg(target.path), 5'000);
    return true;
}

/// Whether a file may be replaced that another program has changed meanwhile, and one be written
/// that lacks something.
bool ConfigEditor::confirmSaving(const Source &target)
{
    constexpr auto Choice = QMessageBox::Save | QMessageBox::Cancel;
    if (target.path == source.path && contentOfFile(target.path) != written
        && ask(tr("%1 has changed since it was opened.").arg(target.path),
               tr("Saving replaces it with what this window shows."), Choice)
               != QMessageBox::Save)
        return false;
    std::vector<Finding> lost = fileLosses;
    for (Finding &loss : lossesInFormat(tree->outlineIn(target.format).outline, target.format))
        lost.push_back(std::move(loss));
    return lost.empty()
           || ask(tr("The file that is written will lack something:"), listOf(lost), Choice)
                  == QMessageBox::Save;
}

/// Whether the present file may be left, saved or not.
bool ConfigEditor::confirmLeaving()
{
    tree->finishTyping();
    if (tree->changes.isClean())
        return true;
    const auto answer =
        ask(tr("%1 has changes that are not saved.").arg(QFileInfo(source.path).fileName()), {},
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void ConfigEditor::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!tree->fileItem() || confirmLeaving());
}

/// The tree is not what the findings are about any more.
void ConfigEditor::treeChanged()
{
    listed = {};
    pause.start();
    drawing.start();
}

void ConfigEditor::listFindings()
{
    pause.stop();
    updateHint();
    listed = tree->outlineIn(source.format);
    std::vector<Finding> found = findingsIn(listed.outline);
    for (Finding &loss : lossesInFormat(listed.outline, source.format)) {
        if (loss.code == "lost-group"_L1 || loss.code == "lost-duplicate"_L1)
            continue; // found above
        loss.text = tr("saving loses %1").arg(loss.text);
        found.push_back(std::move(loss));
    }
    tree->mark(listed, found);

    const size_t count = fileFaults.size() + found.size();
    const QSignalBlocker silence(findings);
    findings->clear();
    const auto list = [this](const QString &text, const Finding &finding) {
        const auto icon = finding.severity == tools::Severity::Error ? QStyle::SP_MessageBoxCritical
                                                                     : QStyle::SP_MessageBoxWarning;
        auto *const row = new QListWidgetItem(style()->standardIcon(icon), text, findings);
        row->setData(SubjectRole, finding.subject);
    };
    for (const Finding &fault : fileFaults)
        list(tr("In the file, line %1: %2").arg(fault.at.begin.line).arg(fault.text), fault);
    for (const Finding &finding : tools::abridged(std::move(found)))
        list(finding.text, finding);
    findingsTitle->setText(count == 0 ? tr("Nothing wrong") : tr("Findings: %1").arg(count));
    tree->showMatching(listed, searchLine->text());
}

/// Goes to the item that a finding is about.
void ConfigEditor::showFinding(int row)
{
    if (listed.items.empty())
        listFindings();
    const QListWidgetItem *const finding = findings->item(row);
    const qsizetype subject = finding ? finding->data(SubjectRole).toLongLong() : -1;
    if (subject >= 0 && subject < qsizetype(listed.items.size()))
        tree->showItem(listed.items[size_t(subject)]);
}

void ConfigEditor::currentChanged()
{
    ++session;
    showSetting();
    if (const QTreeWidgetItem *const item = tree->currentItem())
        paper->follow(libconfig::isGroupItem(*item) ? item->text(0) : item->parent()->text(0));
}

/// Shows the current item's value and what it is for.
void ConfigEditor::showSetting()
{
    const QTreeWidgetItem *const item = tree->currentItem();
    if (!item)
        return;
    QString group;
    for (const QTreeWidgetItem *above = item->parent(); above && above->parent();
         above = above->parent())
        group.prepend(above->text(0) + u'.');
    if (libconfig::isGroupItem(*item))
        return setting->showGroup(group + item->text(0));
    const auto [key, value] = libconfig::settingOf(item->text(0));
    setting->show(group + key, tree->settingOf(item), value);
}

/// Gives the current setting the value that the person gives it.
void ConfigEditor::edit(const QString &value)
{
    QTreeWidgetItem *const item = tree->currentItem();
    if (!SettingPane::isLanguage(tree->settingOf(item)))
        return tree->setValue(item, value, session);
    tree->changes.beginMacro({});
    tree->give(item->parent(), u"basedir"_s, value.isEmpty() ? QString() : labelsFolder());
    tree->setValue(item, value);
    tree->changes.endMacro();
}

/// The folder of the labels' translations: that of the settings, or the suite's own.
QString ConfigEditor::labelsFolder() const
{
    const QTreeWidgetItem *const group = tree->groupOf(u"language"_s);
    const QTreeWidgetItem *const item =
        group ? ConfigTree::settingIn(*group, u"basedir"_s) : nullptr;
    const QString folder = item ? libconfig::settingOf(item->text(0)).second : QString();
    const bool isUsed = !folder.isEmpty() && !QDir(folder, u"*.qm"_s).isEmpty();
    return isUsed ? folder : tools::translationsFolder();
}

QStringList ConfigEditor::languages() const
{
    const QString folder = labelsFolder();
    QStringList values{QString(), u"/"_s};
    for (const QString &file : QDir(folder).entryList({u"*.qm"_s}))
        values.append((folder.endsWith(u'/') ? u""_s : u"/"_s) + file.chopped(3));
    return values;
}

void ConfigEditor::updateHint()
{
    QStringList hints;
    if (const QString reason = whyUnwritable(source.path); !reason.isEmpty())
        hints.append(tr("This file cannot be written: %1. “Save As” writes another.").arg(reason));
    if (tree->fileItem()->childCount() == 0)
        hints.append(tr("There are no settings yet. “zentaro config init” writes a complete "
                        "configuration to start from; or add a group “zentaro” first."));
    hint->setText(hints.join(u'\n'));
    hint->setVisible(!hints.isEmpty());
}

} // namespace configtool

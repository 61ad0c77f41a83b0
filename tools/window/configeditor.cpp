// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "config/configviews.h"
#include "text/localeencoding.h"
#include "tools/window/settingpane.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>

#include <cerrno>
#include <unistd.h>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// Why the file cannot be written, or made where it is missing; empty when it can.
QString whyUnwritable(const QString &path)
{
    QFileInfo place(path);
    while (!place.exists() && place.path() != place.filePath())
        place.setFile(place.path());
    if (place.filePath() != path && !place.isDir())
        return text::systemMessage(ENOTDIR);
    return access(QFile::encodeName(place.filePath()).constData(), W_OK) == 0
               ? QString()
               : text::systemMessage(errno);
}

/// Whether groups stand so deep within each other that the toolkit, which goes down and up again
/// for each of them, would take too long.
bool nestsTooDeep(const Outline &outline)
{
    constexpr int Most = 1'000; // levels
    std::vector<int> levels;
    for (const Entry &entry : outline.entries)
        levels.push_back(entry.parent < 0 ? 0 : levels[size_t(entry.parent)] + 1);
    return std::ranges::any_of(levels, [](int level) { return level > Most; });
}

/// The item in the tree below `file` that stands for an entry; null where the store has dropped it.
QTreeWidgetItem *itemOf(const Outline &outline, qsizetype index, QTreeWidgetItem *file)
{
    const Entry &entry = outline.entries[size_t(index)];
    return index <= 0 ? file
                      : ConfigTree::childOf(itemOf(outline, entry.parent, file), entry.isGroup,
                                            entry.name);
}

QString listOf(const std::vector<Finding> &findings)
{
    constexpr size_t Most = 12; // lines in a box
    QString lines;
    for (size_t i = 0; i < findings.size() && i < Most; ++i)
        lines += u"• "_s + findings[i].text + u'\n';
    return findings.size() > Most
               ? lines + ConfigEditor::tr("and %1 more").arg(findings.size() - Most)
               : lines;
}

} // namespace

QMessageBox::StandardButton ConfigEditor::ask(const QString &text, const QString &details,
                                              QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Warning, tr("Configuration"), text, buttons, this);
    box.setInformativeText(details);
    box.setTextFormat(Qt::PlainText);
    return QMessageBox::StandardButton(box.exec());
}

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
        return refuse(tr("%1 cannot be read.").arg(file.path), text::reasonOf(present));
    const QByteArray content = present.isOpen() ? present.readAll() : QByteArray();
    Outline outline = readOutline(content, file.format);
    if (nestsTooDeep(outline))
        return refuse(trouble, tr("Its groups stand too deep within each other."));
    written = content;
    asRead = std::move(outline);
    libconfig::Config stored;
    stored.readContent(content, file.path, file.format);
    const std::unique_ptr<QTreeWidget> view(stored.newConfigListView());
    std::unique_ptr<QTreeWidgetItem> item(view->takeTopLevelItem(0));
    if (!item)
        item = std::make_unique<QTreeWidgetItem>(QStringList(file.path), libconfig::GroupItem);
    tree->take(std::move(item));
    nameFile(file);
    listFindings();
    drawing.start();
    tree->setFocus();
    return true;
}

void ConfigEditor::nameFile(const Source &file)
{
    source = file;
    tree->fileItem()->setText(0, file.path);
    setWindowTitle(u"%1[*] - %2"_s.arg(QFileInfo(file.path).fileName(), tr("Configuration")));
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
    if (!confirmSaving(target))
        return false;
    libconfig::Config stored; // of no name, under which it would be saved
    stored.loadListView(tree);
    const std::optional<QByteArray> content = stored.writtenAs(target.format);
    QDir().mkpath(QFileInfo(target.path).path());
    const QString fault =
        content ? libconfig::replaceFile(target.path, *content) : text::systemMessage(EFBIG);
    if (!fault.isEmpty())
        return refuse(tr("%1 could not be written.").arg(target.path), fault);
    written = *content;
    asRead = {};
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
    QFile present(target.path);
    if (target.path == source.path
        && (present.open(QIODevice::ReadOnly) ? present.readAll() : QByteArray()) != written
        && ask(tr("%1 has changed since it was opened.").arg(target.path),
               tr("Saving replaces it with what this window shows."), Choice)
               != QMessageBox::Save)
        return false;
    std::vector<Finding> lost = asRead.losses;
    std::ranges::move(lossesInFormat(tree->outlineIn(target.format).outline, target.format),
                      std::back_inserter(lost));
    return lost.empty()
           || ask(tr("The file that is written will lack something:"), listOf(lost), Choice)
                  == QMessageBox::Save;
}

/// Whether the present file may be left, saved or not.
bool ConfigEditor::confirmLeaving()
{
    if (tree->changes.isClean())
        return true;
    const auto answer =
        ask(tr("%1 has changes that are not saved.").arg(QFileInfo(source.path).fileName()), {},
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void ConfigEditor::closeEvent(QCloseEvent *event) { event->setAccepted(confirmLeaving()); }

void ConfigEditor::listFindings()
{
    pause.stop();
    const TreeOutline listed = tree->outlineIn(source.format);
    std::vector<Finding> found;
    const auto tell = [&found](Severity severity, QLatin1StringView code, const QString &text) {
        found.push_back({severity, code, text, {}, 0}); // of the whole file
    };
    if (const QString reason = whyUnwritable(source.path); !reason.isEmpty())
        tell(Severity::Error, "unwritable"_L1,
             tr("This file cannot be written: %1. “Save As” writes another.").arg(reason));
    if (tree->fileItem()->childCount() == 0)
        tell(Severity::Note, "empty"_L1,
             tr("There are no settings yet. “zentaro config init” writes a complete "
                "configuration to start from; or add a group “zentaro” first."));
    std::ranges::move(findingsIn(listed.outline), std::back_inserter(found));
    for (Finding &loss : lossesInFormat(listed.outline, source.format)) {
        if (loss.code == "lost-group"_L1 || loss.code == "lost-duplicate"_L1)
            continue; // found above
        loss.text = tr("saving loses %1").arg(loss.text);
        found.push_back(std::move(loss));
    }
    const QIcon icons[] = {style()->standardIcon(QStyle::SP_MessageBoxWarning),
                           style()->standardIcon(QStyle::SP_MessageBoxCritical)};
    for (QTreeWidgetItem *const item : listed.items) {
        if (!item->icon(0).isNull())
            item->setIcon(0, {});
    }
    for (const Finding &finding : found) {
        QTreeWidgetItem &item = *listed.items[size_t(finding.subject)];
        if (item.icon(0).isNull() || finding.severity == Severity::Error)
            item.setIcon(0, icons[finding.severity == Severity::Error]);
    }

    const size_t count = asRead.faults.size() + found.size();
    const QSignalBlocker silence(findings);
    findings->clear();
    subjects.clear();
    const auto list = [&](const QString &text, Severity severity, QTreeWidgetItem *subject) {
        new QListWidgetItem(icons[severity == Severity::Error], text, findings);
        subjects.append(subject);
    };
    for (const Finding &fault : asRead.faults)
        list(tr("In the file, line %1: %2").arg(fault.at.begin.line).arg(fault.text),
             fault.severity, nullptr);
    for (const Finding &finding : tools::abridged(std::move(found)))
        list(finding.text, finding.severity,
             finding.subject < 0 ? nullptr : listed.items[size_t(finding.subject)]);
    findingsTitle->setText(count == 0 ? tr("Nothing wrong") : tr("Findings: %1").arg(count));
    tree->showMatching(searchLine->text());
}

/// Goes to the item that a finding is about.
void ConfigEditor::showFinding(int row)
{
    if (pause.isActive()) // the items may not be there any more
        listFindings();
    QTreeWidgetItem *item = subjects.value(row);
    if (row >= 0 && size_t(row) < asRead.faults.size()) { // it stands in or behind its subject
        const auto next =
            std::ranges::upper_bound(asRead.entries, asRead.faults[size_t(row)].at.begin, {},
                                     [](const Entry &entry) { return entry.at.begin; });
        item = itemOf(asRead, next - asRead.entries.begin() - 1, tree->fileItem());
    }
    if (item)
        tree->showItem(item);
}

} // namespace configtool

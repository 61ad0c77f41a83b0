// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include <QApplication>
#include <QFile>
#include <QSpinBox>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Draws the window of `zentaro config edit` into a picture, on paper that has just become
/// narrower.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"zentaro.conf"_s);
    QFile::copy(QStringLiteral(ZENTARO_SOURCE_DIR "/samples/zentaro-40.conf"), path);
    configtool::ConfigEditor editor;
    if (argc < 2 || !editor.open({path, u"cfg"_s}))
        return 1;
    editor.show();
    auto *const tree = editor.findChild<QTreeWidget *>();
    tree->topLevelItem(0)->setText(0, u"~/.zentaro/conf/zentaro.conf"_s);
    QTreeWidgetItem *const group =
        tree->findItems(u"receiptdoc"_s, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    tree->setCurrentItem(group->child(3)); // paperWidth
    tree->scrollToItem(group, QAbstractItemView::PositionAtTop);
    auto *const number = editor.findChild<QSpinBox *>();
    number->setFocus();
    QCoreApplication::processEvents();
    number->setValue(36);
    QCoreApplication::processEvents();
    editor.listFindings();
    return editor.grab().save(QFile::decodeName(argv[1])) ? 0 : 1;
}

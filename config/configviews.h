// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeWidgetItem>

#include <utility>

/// How the tree views show the tree: what an item stands for, and the text of a setting.
namespace libconfig {

/// The kinds of items that the views are built of. Such an item stays what it is whatever its text.
enum ItemType : int { GroupItem = QTreeWidgetItem::UserType, SettingItem };

/// Whether the item stands for a group; one of another type does when it has children or no `=` in
/// its text.
bool isGroupItem(const QTreeWidgetItem &item);

/// `key = value`, the text of a setting's item.
QString settingText(const QString &key, const QString &value);
/// Key and value of such a text: the key is what stands before the first `=`, without blanks at its
/// ends, the value all behind it but one blank. Without a `=` the value is empty.
std::pair<QString, QString> settingOf(const QString &text);

/// New items, owned by the caller. They are edited in place.
QTreeWidgetItem *newGroupItem(const QString &name);
QTreeWidgetItem *newSettingItem(const QString &key, const QString &value);

} // namespace libconfig

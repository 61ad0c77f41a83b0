// SPDX-License-Identifier: MIT
#include "config/config.h"
#include "tests/configfiles.h"
#include "tools/config/losses.h"
#include "tools/config/outline.h"
#include "tools/config/settingcheck.h"
#include "tools/knownkeys.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace configtool;

namespace {

const QString root = support::sourceDir() + u'/';

/// The file of the form `from` written in the form `to`, whether it reads back otherwise, and what
/// is named as lost then.
QString writtenAs(const QString &to, const QByteArray &content, const QString &from)
{
    const Outline outline = readOutline(content, from);
    const QByteArray written = support::rewritten(content, from, to);
    const std::vector<Finding> losses = lossesInFormat(outline, to);
    // What the reader dropped is named too, and not in the tree either way.
    const bool keepsAll = std::ranges::all_of(losses, [&](const Finding &loss) {
        return loss.code == "lost-duplicate"_L1
               || (loss.code == "lost-group"_L1 && !outline.keepsEmptyGroups
                   && !outline.entries[size_t(loss.subject)].hasMember);
    });
    const bool readsBack = support::treeOf(written, to) == support::treeOf(content, from);
    EXPECT_TRUE(readsBack || !keepsAll);
    return "== as "_L1 + to + u'\n'
           + (to == "cfg"_L1 ? QString::fromLatin1(written) : QString::fromUtf8(written))
           + (readsBack ? u""_s : u"== which is not the same\n"_s)
           + tools::findingLines(u"lost"_s, losses);
}

/// What becomes of a configuration: its settings, with what looking them up answers, its tree, the
/// files that are written from it, and what checking it finds.
QString outcomeOf(const QString &path)
{
    const QByteArray content = support::readFile(path);
    const QString form = path.section(u'.', -1);
    const libconfig::Config config(path, form);
    QString told = u"== settings\n"_s;
    config.forEachSetting([&](const QString &key, const QString &value) {
        told += key + " = "_L1 + value + " -> "_L1 + config.lookup(key) + u'\n';
    });
    told += "== tree\n"_L1 + support::treeOf(content, form);
    told += writtenAs(u"cfg"_s, content, form) + writtenAs(u"xml"_s, content, form);

    const Outline outline = readOutline(content, form);
    std::vector<Finding> findings = checkSettings(outline);
    findings.insert(findings.end(), outline.faults.begin(), outline.faults.end());
    return told + "== found\n"_L1 + tools::findingLines(u"file"_s, tools::abridged(findings));
}

TEST(ConfigGolden, IsAsItsReferences)
{
    const QDir folder(root + u"tests/golden/config"_s);
    const QStringList names = folder.entryList({u"*.cfg"_s, u"*.xml"_s});
    EXPECT_GE(names.size(), 60);
    for (const QString &name : names) {
        SCOPED_TRACE(name.toStdString());
        const QString path = folder.filePath(name);
        support::expectReference(path.chopped(3) + u"txt"_s, outcomeOf(path).toUtf8());
    }
    EXPECT_EQ(folder.entryList({u"*.txt"_s}).size(), names.size());
}

TEST(ConfigLosses, AreNamedWhateverTheFile)
{
    for (const QString &target : {u"config"_s, u"roundtrip"_s}) {
        const QDir folder(root + u"fuzz/corpus/"_s + target);
        for (const QString &name : folder.entryList(QDir::Files)) {
            SCOPED_TRACE(name.toStdString());
            const QByteArray content = support::readFile(folder.filePath(name));
            for (const QString &form : {u"cfg"_s, u"xml"_s}) {
                writtenAs(u"cfg"_s, content, form);
                writtenAs(u"xml"_s, content, form);
            }
        }
    }
}

TEST(ConfigCheck, KnowsTheKeysOfTheDocumentedConfiguration)
{
    const QString page = QString::fromUtf8(support::readFile(root + u"doc/configuration.md"_s));
    static const QRegularExpression cell(
        u"^\\| `(?:zentaro\\.)?(?:\\w+\\.(?=\\w))?(\\w+)\\.?` \\|"_s,
        QRegularExpression::MultilineOption);
    QSet<QString> documented{u"copyNumber"_s};
    for (const auto &match : cell.globalMatch(page))
        documented += match.captured(1);
    QSet<QString> known;
    for (const QString &group : tools::knownGroups()) {
        if (tools::isDocumentGroup(group))
            known += group;
        for (const QString &word : tools::knownWords(group))
            known += word;
    }
    EXPECT_EQ(known, documented);
}

TEST(ConfigTemplate, SetsEveryNumberAndSwitch)
{
    for (const QString &name : {u"samples/zentaro-32.conf"_s, u"samples/zentaro-40.conf"_s}) {
        const libconfig::Config config(root + name, u"cfg"_s);
        for (const QString &group : tools::knownGroups()) {
            for (const Setting *const setting : tools::settingsOf(group)) {
                const QLatin1StringView word(setting->word);
                const bool isNumber =
                    setting->kind == SettingKind::Number && word != "copyNumber"_L1;
                if (isNumber || setting->kind == SettingKind::Switch) {
                    EXPECT_NE(config.lookup(u"zentaro."_s + group + u'.' + word), u""_s)
                        << group.toStdString() << ' ' << word.data();
                }
            }
        }
    }
}

} // namespace

// SPDX-License-Identifier: MIT
#include "tests/configfiles.h"
#include "tests/support.h"
#include "tools/config/outline.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace configtool;

namespace {

const QString root = support::sourceDir() + u'/';
const QDir configurations(root + u"tests/golden/config"_s);

/// The file of the form `from` written in the form `to`, whether it reads back otherwise, and what
/// is named as lost then.
QString writtenAs(const QString &to, const QByteArray &content, const QString &from)
{
    const Outline outline = readOutline(content, from);
    const QByteArray written = support::rewritten(content, from, to);
    const std::vector<Finding> losses = lossesInFormat(outline, to);
    const bool readsBack = support::treeOf(written, to) == support::treeOf(content, from);
    EXPECT_EQ(readsBack, support::areOfTheReader(losses, outline));
    return "== as "_L1 + to + u'\n'
           + (to == "cfg"_L1 ? QString::fromLatin1(written) : QString::fromUtf8(written))
           + (readsBack ? u""_s : u"== which is not the same\n"_s)
           + tools::findingLines(u"lost"_s, losses);
}

/// What becomes of a configuration: its settings, with what looking them up answers, its tree, the
/// files that are written from it, and what checking it finds.
QByteArray outcomeOf(const QByteArray &content, const QString &form)
{
    libconfig::Config config;
    config.readContent(content, u"conf"_s, form);
    QString told = u"== settings\n"_s;
    config.forEachSetting([&](const QString &key, const QString &value) {
        told += key + " = "_L1 + value + " -> "_L1 + config.lookup(key) + u'\n';
    });
    told += "== tree\n"_L1 + support::treeOf(content, form);
    told += writtenAs(u"cfg"_s, content, form) + writtenAs(u"xml"_s, content, form);

    told +=
        "== found\n"_L1
        + tools::findingLines(u"file"_s, tools::abridged(findingsIn(readOutline(content, form))));
    return told.toUtf8();
}

/// The lines of a case: `\xHH` is a byte, `\\` a backslash, and a `\` at the end of a line takes
/// the line end away.
QByteArray unescaped(const QByteArray &lines)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i] != '\\') {
            bytes += lines[i];
        } else if (lines[++i] == 'x') {
            bytes += QByteArray::fromHex(lines.sliced(i + 1, 2));
            i += 2;
        } else if (lines[i] != '\n') {
            bytes += lines[i];
        }
    }
    return bytes;
}

class ConfigGolden : public testing::TestWithParam<QString>
{
};

/// A file holds cases: under a heading (`### NAME.FORM`) the lines of a configuration (`| `), and
/// then what becomes of it.
TEST_P(ConfigGolden, IsAsItsReference)
{
    support::expectCases(configurations.filePath(GetParam()), "### ", "| ",
                         [](const QByteArray &heading, const QByteArray &lines) {
                             return outcomeOf(unescaped(lines),
                                              QString::fromLatin1(heading.last(3)));
                         });
}

INSTANTIATE_TEST_SUITE_P(
    Golden, ConfigGolden, testing::ValuesIn(configurations.entryList({u"*.txt"_s})),
    [](const auto &test) {
        return QString(test.param).chopped(4).replace(u'-', u'_').toStdString();
    });

/// What differs of a content from another, between what they begin and end with alike.
QByteArray changedPart(const QByteArray &content, const QByteArray &other)
{
    const qsizetype shorter = qMin(content.size(), other.size());
    const auto begin =
        std::mismatch(content.begin(), content.begin() + shorter, other.begin()).first;
    const qsizetype alike = begin - content.begin();
    qsizetype end = 0;
    while (end < shorter - alike
           && content[content.size() - 1 - end] == other[other.size() - 1 - end])
        ++end;
    return content.sliced(alike, content.size() - alike - end);
}

TEST(ConfigEdit, ChangesASettingAndNoOtherByteWhateverTheFile)
{
    const auto lookup = [](const QByteArray &content, const QString &key) {
        libconfig::Config config;
        config.readContent(content, {}, u"cfg"_s);
        return config.lookup(key);
    };
    int changed = 0;
    for (const QString &folderName :
         {u"fuzz/corpus/config"_s, u"fuzz/corpus/roundtrip"_s, u"fuzz/corpus/printfile"_s,
          u"tests/golden/odd"_s, u"samples"_s}) {
        const QDir folder(root + folderName);
        for (const QString &name : folder.entryList(QDir::Files)) {
            const QByteArray content = support::readFile(folder.filePath(name));
            for (const QString &key :
                 {u"zentaro.doc.paperWidth"_s, u"zentaro.db.dbname"_s, u"a.b"_s}) {
                SCOPED_TRACE((name + u' ' + key).toStdString());
                const auto [edited, fault] = withSetting(content, key, u"7"_s);
                EXPECT_EQ(lookup(edited, key), fault.isEmpty() ? u"7"_s : lookup(content, key));
                EXPECT_FALSE(changedPart(content, edited).contains(';'));
                const EditedContent without = withoutSetting(edited, key);
                EXPECT_TRUE(!without.fault.isEmpty() || lookup(without.content, key).isEmpty());
                changed += fault.isEmpty() ? 1 : 0;
            }
        }
    }
    EXPECT_GT(changed, 30);
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

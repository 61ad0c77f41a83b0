// SPDX-License-Identifier: MIT
#include "app/compile.h"
#include "app/ztconfiguration.h"
#include "log/logger.h"
#include "render/settings.h"
#include "render/vocabulary.h"
#include "tests/support.h"
#include "util/hlibrary.h"

#include <QDir>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// This program has a configuration of its own, in place of the library's: it notes the keys that
// it is asked for, and switches everything on.

static QSet<QString> keysAsked;

ZTConfiguration::ZTConfiguration() = default;

QString ZTConfiguration::getStrValue(const QString &key) const
{
    keysAsked += key;
    return key.contains(u".print") ? u"true"_s : u""_s;
}

namespace {

/// Holds the keys that were asked for against those of the table that `isRead` takes.
void expectAsked(bool (*isRead)(const QString &group, const QString &word))
{
    QSet<QString> known;
    const auto add = [&](const QString &group, const Setting &setting) {
        const QString word = setting.word;
        if (isRead(group, word))
            known += "zentaro."_L1 + group + u'.' + word;
    };
    for (const Setting &setting : allSettings) {
        if (!setting.group.isEmpty())
            add(setting.group, setting);
        for (size_t i = 0; setting.group.isEmpty() && i < documentTypes.size(); ++i) {
            if ((setting.types >> i) & 1)
                add(QString(documentTypes[i].keyPrefix).section(u'.', 1, 1), setting);
        }
    }
    EXPECT_EQ((keysAsked - known).values(), QStringList()) << "asked for, and not in the table";
    EXPECT_EQ((known - keysAsked).values(), QStringList()) << "in the table, and never asked for";
}

TEST(SettingsTable, HasTheKeysThatThePrintRunAsksFor)
{
    const support::Folder folder;
    QByteArray program = "zentaro-print";
    QByteArray output = folder.path(u"out"_s).toLocal8Bit();
    const QDir samples(support::sourceDir() + u"/samples"_s);
    for (const QString &name : samples.entryList({u"*.xml"_s})) {
        QByteArray request = samples.filePath(name).toLocal8Bit();
        char *words[] = {program.data(), request.data(), output.data(), nullptr};
        compile(3, words);
    }
    expectAsked([](const QString &group, const QString &word) {
        // Fiscal documents print no margin; the copies are not the print run's.
        const bool isUnread =
            word == "copyNumber"_L1 || (group == "fiscaldoc"_L1 && word == "topMargin"_L1);
        return group == "language"_L1 || (group.endsWith("doc"_L1) && !isUnread);
    });
}

TEST(SettingsTable, HasTheKeysThatTheLibrariesAskFor)
{
    keysAsked.clear();
    const Logger logger(u"any"_s);
    for (const auto setting :
         {&HLibrary::dbname, &HLibrary::username, &HLibrary::password, &HLibrary::hostname})
        setting();
    HLibrary::pathWithBinaryFile(u"program"_s);
    for (const DocumentMethod &method : documentMethods) {
        if (method.settingsType != "sold"_L1) // the list of sold items has no copy number
            HLibrary::copyNumber(method.settingsType);
    }
    expectAsked([](const QString &group, const QString &word) {
        return group.endsWith("doc"_L1) ? word == "copyNumber"_L1 : group != "language"_L1;
    });
}

} // namespace

// SPDX-License-Identifier: MIT
#include "app/compile.h"
#include "app/ztconfiguration.h"
#include "log/logger.h"
#include "render/documentmethod.h"
#include "tests/support.h"
#include "util/hlibrary.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

// This program has a configuration of its own, in place of the library's: it notes the keys that
// it is asked for, and switches everything on.

namespace {

QSet<QString> &keysAsked()
{
    static QSet<QString> keys;
    return keys;
}

} // namespace

ZTConfiguration::ZTConfiguration() = default;

QString ZTConfiguration::getStrValue(const QString &key) const
{
    keysAsked() += key;
    return key.contains(u".print") ? u"true"_s : u""_s;
}

namespace {

QString pageText()
{
    return QString::fromUtf8(support::readFile(support::sourceDir() + u"/doc/configuration.md"_s));
}

/// The first cells of the table rows of a section of the page, without their backquotes.
QStringList firstCells(const QString &page, const QString &heading)
{
    const QString section = page.section(u"\n## "_s + heading + u'\n', 1).section(u"\n## "_s, 0, 0);
    static const QRegularExpression row(u"^\\| `([^`]+)` \\|"_s,
                                        QRegularExpression::MultilineOption);
    QStringList cells;
    for (const auto &match : row.globalMatch(section))
        cells += match.captured(1);
    return cells;
}

/// Every key that the page promises to be read by the print run.
QSet<QString> keysOfThePage()
{
    const QString page = pageText();
    const QStringList language = firstCells(page, u"Language"_s);
    QSet<QString> keys(language.begin(), language.end());
    const QStringList documents = firstCells(page, u"Documents"_s);
    for (const QString &prefix : documents.filter(u"zentaro."_s)) {
        for (const QString &keyWord : documents) {
            const bool fiscal = prefix == "zentaro.fiscaldoc."_L1;
            if (keyWord.startsWith(u"zentaro.") || (keyWord == "descriptionWidth"_L1 && !fiscal))
                continue;
            keys += prefix + keyWord;
        }
    }
    // Fiscal documents print no margin.
    keys -= u"zentaro.fiscaldoc.topMargin"_s;
    return keys;
}

TEST(ConfigurationPage, ListsTheKeysThatThePrintRunAsksFor)
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
    const QSet<QString> page = keysOfThePage();
    EXPECT_EQ((keysAsked() - page).values(), QStringList()) << "asked for, and not on the page";
    EXPECT_EQ((page - keysAsked()).values(), QStringList()) << "on the page, and never asked for";
}

TEST(ConfigurationPage, ListsTheKeysThatTheLibrariesAskFor)
{
    keysAsked().clear();
    const Logger logger(u"any"_s);
    const std::array read = {&HLibrary::dbname, &HLibrary::username, &HLibrary::password,
                             &HLibrary::hostname};
    for (const auto setting : read)
        setting();
    HLibrary::pathWithBinaryFile(u"program"_s);
    for (const DocumentMethod &method : documentMethods()) {
        if (method.settingsType != "sold"_L1) // the list of sold items has no copy number
            HLibrary::copyNumber(method.settingsType);
    }
    const QStringList cells = firstCells(pageText(), u"Shared libraries"_s);
    QSet<QString> page(cells.begin(), cells.end());
    const QString prefixes = pageText().section(u"behind it |"_s, 1).section(u"copyNumber"_s, 0, 0);
    for (const QString &prefix : prefixes.split(u'`').filter(u"zentaro."_s))
        page += prefix + "copyNumber"_L1;
    EXPECT_EQ(keysAsked(), page);
}

} // namespace

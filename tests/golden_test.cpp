// SPDX-License-Identifier: MIT
#include "render/documentmethod.h"
#include "tests/support.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Every request of these folders is printed by the real program under the configuration, and its
// print file held against the reference of the same name. Run scripts/update-golden to rewrite the
// references, and review what changes.

namespace {

/// One request under one configuration.
struct Golden
{
    QString request;
    QString configuration;
    QString reference;
};

void PrintTo(const Golden &golden, std::ostream *out)
{
    *out << golden.request.toStdString();
}

std::vector<Golden> goldens(const QString &requests, const QString &configuration,
                            const QString &references)
{
    std::vector<Golden> all;
    const QDir root(support::sourceDir());
    const QDir folder(root.filePath(requests));
    for (const QString &name : folder.entryList({u"*.xml"_s}, QDir::Files, QDir::Name)) {
        const QString reference = references + u'/' + QFileInfo(name).baseName() + u".prn"_s;
        all.push_back(
            {folder.filePath(name), root.filePath(configuration), root.filePath(reference)});
    }
    return all;
}

class GoldenTest : public testing::TestWithParam<Golden>
{
};

TEST_P(GoldenTest, PrintsItsReference)
{
    const Golden &golden = GetParam();
    const support::Home home(support::readFile(golden.configuration));
    const QByteArray printed = support::printed(support::readFile(golden.request), home);
    if (qEnvironmentVariableIsSet("ZENTARO_UPDATE_GOLDEN")) {
        support::writeFile(golden.reference, printed);
        return;
    }
    ASSERT_TRUE(QFileInfo::exists(golden.reference)) << "no reference";
    if (printed == support::readFile(golden.reference))
        return;
    support::writeFile(home.path(u"printed"_s), printed);
    QProcess diff;
    diff.start(u"diff"_s, {u"-u"_s, golden.reference, home.path(u"printed"_s)});
    diff.waitForFinished();
    FAIL() << diff.readAll().toStdString();
}

std::string nameOf(const testing::TestParamInfo<Golden> &info)
{
    return QFileInfo(info.param.request).baseName().replace(u'-', u'_').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Paper40, GoldenTest,
                         testing::ValuesIn(goldens(u"samples"_s, u"samples/zentaro-40.conf"_s,
                                                   u"tests/golden/paper40"_s)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Paper32, GoldenTest,
                         testing::ValuesIn(goldens(u"samples"_s, u"samples/zentaro-32.conf"_s,
                                                   u"tests/golden/paper32"_s)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Odd, GoldenTest,
                         testing::ValuesIn(goldens(u"tests/golden/odd"_s,
                                                   u"tests/golden/odd/zentaro.conf"_s,
                                                   u"tests/golden/odd"_s)),
                         nameOf);

/// References and requests belong together, one to one, in every folder.
TEST(Golden, HasNoReferenceWithoutARequest)
{
    const QDir root(support::sourceDir());
    const std::pair<QString, QString> folders[] = {{u"samples"_s, u"tests/golden/paper40"_s},
                                                   {u"samples"_s, u"tests/golden/paper32"_s},
                                                   {u"tests/golden/odd"_s, u"tests/golden/odd"_s}};
    for (const auto &[requests, references] : folders) {
        QStringList wanted = QDir(root.filePath(requests)).entryList({u"*.xml"_s});
        EXPECT_GE(wanted.size(), 5);
        EXPECT_EQ(QDir(root.filePath(references)).entryList({u"*.prn"_s}),
                  wanted.replaceInStrings(u".xml"_s, u".prn"_s));
    }
}

/// The samples' page shows what each request prints; as text, without the fiscal carriage returns.
TEST(Golden, ShowsEveryMethodInTheSamplesPage)
{
    const QDir root(support::sourceDir());
    const QString pageName = root.filePath(u"samples/README.md"_s);
    QByteArray page = support::readFile(pageName);
    for (const DocumentMethod &method : documentMethods()) {
        const QByteArray name(method.name.data(), method.name.size());
        const QString sample = root.filePath(u"samples/"_s + method.name + u".xml"_s);
        EXPECT_TRUE(support::readFile(sample).contains("<method name=\"" + name + "\"/>"));

        const QString reference = u"tests/golden/paper40/"_s + method.name + u".prn"_s;
        const QByteArray printed =
            support::readFile(root.filePath(reference)).replace("\r", QByteArray());
        const qsizetype section = page.indexOf("\n## " + name + "\n");
        const qsizetype begin = page.indexOf("```\n", section) + 4;
        const qsizetype end = page.indexOf("```", begin);
        ASSERT_LT(section, begin) << name.data();
        if (qEnvironmentVariableIsSet("ZENTARO_UPDATE_GOLDEN"))
            page.replace(begin, end - begin, printed);
        EXPECT_EQ(page.mid(begin, end - begin), printed) << name.data();
    }
    if (qEnvironmentVariableIsSet("ZENTARO_UPDATE_GOLDEN"))
        support::writeFile(pageName, page);
}

} // namespace

// SPDX-License-Identifier: MIT
#include "render/requestreader.h"
#include "tests/recordingdevice.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// What comes of every request of a folder is held against the reference of the same name: its print
// file, made by the real program (*.prn), and the calls that its device gets (*.calls). Run
// scripts/update-golden to rewrite the references, and review what changes.

namespace {

const QDir root(support::sourceDir());

/// Requests under the configuration of their own name or, without one, that of their folder.
struct Folder
{
    QString requests, configuration, references, suffix;
};
const Folder folders[] = {
    {u"samples"_s, u"samples/zentaro-40.conf"_s, u"tests/golden/paper40"_s, u"calls"_s},
    {u"samples"_s, u"samples/zentaro-32.conf"_s, u"tests/golden/paper32"_s, u"prn"_s},
    {u"tests/golden/odd"_s, u"tests/golden/odd/zentaro.conf"_s, u"tests/golden/odd"_s, u"prn"_s},
    {u"tests/golden/odd"_s, u"tests/golden/odd/zentaro.conf"_s, u"tests/golden/odd"_s, u"calls"_s}};

QStringList namesIn(const QString &folder, const QString &suffix)
{
    return QDir(root.filePath(folder))
        .entryList({u"*."_s + suffix})
        .replaceInStrings(u'.' + suffix, QString());
}

struct Golden
{
    QString request, configuration, reference;
};

std::vector<Golden> goldens()
{
    std::vector<Golden> all;
    for (const auto &[requests, configuration, references, suffix] : folders) {
        for (const QString &name : namesIn(requests, u"xml"_s)) {
            const QString request = root.filePath(requests + u'/' + name);
            const QString own = request + u".conf"_s;
            all.push_back({request + u".xml"_s,
                           QFile::exists(own) ? own : root.filePath(configuration),
                           root.filePath(references + u'/' + name + u'.' + suffix)});
        }
    }
    return all;
}

void PrintTo(const Golden &golden, std::ostream *out) { *out << golden.reference.toStdString(); }

QByteArray callsFor(const Golden &golden)
{
    SyncSingleton<ZTConfiguration>::instance()->readFile(golden.configuration, u"cfg"_s);
    QFile request(golden.request);
    support::RecordingDevice device;
    requestreader::read(request, device);
    return device.takeCalls();
}

class GoldenTest : public testing::TestWithParam<Golden>
{
};

TEST_P(GoldenTest, IsAsItsReference)
{
    const Golden &golden = GetParam();
    const support::Home home(support::readFile(golden.configuration));
    const QByteArray found = golden.reference.endsWith(u".calls")
                                 ? callsFor(golden)
                                 : support::printed(support::readFile(golden.request), home);
    support::expectReference(golden.reference, found);
}

INSTANTIATE_TEST_SUITE_P(All, GoldenTest, testing::ValuesIn(goldens()), [](const auto &test) {
    static const QRegularExpression between(u"\\W"_s);
    return test.param.reference.section(u'/', -2).replace(between, u"_"_s).toStdString();
});

TEST(Golden, HasNoReferenceWithoutARequest)
{
    for (const Folder &folder : folders) {
        EXPECT_GE(namesIn(folder.requests, u"xml"_s).size(), 13);
        EXPECT_EQ(namesIn(folder.references, folder.suffix), namesIn(folder.requests, u"xml"_s));
    }
}

} // namespace

// SPDX-License-Identifier: MIT
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "log/hlogmanager.h"
#include "tests/support.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Sets the configuration of every Logger from now on; a setting that is null is left out.
void configure(const QByteArray &level, const QByteArray &basedir, const QByteArray &filename,
               const QByteArray &type)
{
    QByteArray settings;
    for (const auto &[key, value] : {std::pair("level = \"", level),
                                     {"basedir = \"", basedir},
                                     {"filename = \"", filename},
                                     {"type = \"", type}})
        settings += value.isNull() ? QByteArray() : key + value + "\"; ";
    const support::Home home("zentaro : { logger : { " + settings + "}; };");
    SyncSingleton<ZTConfiguration>::instance()->readFile(home.configurationPath(), u"cfg"_s);
}

/// The file without the time stamps, whose form every line must have.
QByteArray lines(const QString &path)
{
    static const QRegularExpression stamp(
        uR"(^\[(0\d|1[0-2])-([0-2]\d|3[01])-20\d\d ([01]\d|2[0-3]):[0-5]\d:[0-5]\d:\d{3}\] )"_s,
        QRegularExpression::MultilineOption);
    return QString::fromUtf8(support::readFile(path)).remove(stamp).toUtf8();
}

class Log : public testing::Test
{
protected:
    Log()
    {
        qputenv("LC_ALL", "C.UTF-8");
        testing::internal::CaptureStderr();
    }
    ~Log() override { EXPECT_EQ(testing::internal::GetCapturedStderr(), ""); }

    const support::Folder folder;
    const QByteArray base = folder.path().toUtf8();
    const QString file = folder.path(u"print.log"_s);
};

} // namespace

TEST_F(Log, ThresholdAndTypeComeFromTheConfiguration)
{
    const QByteArray all =
        "DEBUG: Start Logger\nDEBUG: d\nINFO: i\nWARNING: w\nERROR: e\nFATAL: f\n: ?\n";
    const auto from = [&](const char *name) { return all.mid(all.indexOf(name)); };
    const std::tuple<QByteArray, QByteArray, QByteArray> cases[] = {
        {"debug", "append", "old\n" + all},
        {"", "APPEND", "old\n" + all},
        {"loud", "Overwrite", all},
        {{}, "overwrite", all},
        {"info", "append", "old\n" + from("INFO")},
        {"wArNiNg", "append", "old\n" + from("WARNING")},
        {"ERROR", "oVERWRITE", from("ERROR")},
        {"Fatal", "append", "old\n" + from("FATAL")},
        {"debug", "replace", "old\n"},
        {"debug", {}, "old\n"}};
    for (const auto &[level, type, content] : cases) {
        support::writeFile(file, "old\n");
        configure(level, base, "print.log", type);
        Logger logger(u"any"_s);
        logger.debug(u"d"_s);
        logger.info(u"i"_s);
        logger.warning(u"w"_s);
        logger.error(u"e"_s);
        logger.fatal(u"f"_s);
        logger.write(Logger::Level(5), u"?"_s);
        logger.write(Logger::Level(-1), u"below every threshold"_s);
        EXPECT_EQ(lines(file), content) << level.toStdString() << ' ' << type.toStdString();
    }
}

TEST_F(Log, OnlyAKnownTypeOpensTheFileAnew)
{
    configure("info", base, "print.log", "append");
    Logger logger({});
    logger.info(u"two\nlines, \u00e0 1\u20ac"_s);
    logger.setType(u"other"_s);
    logger.info(u"still open"_s);
    EXPECT_EQ(lines(file), "INFO: two\nlines, \u00e0 1\u20ac\nINFO: still open\n"_ba);
    logger.setType(u"overwrite"_s);
    logger.setLevel(u"warning"_s);
    logger.info(u"dropped"_s);
    logger.fatal(u"anew"_s);
    EXPECT_EQ(lines(file), "FATAL: anew\n");
}

TEST_F(Log, AFileThatDoesNotOpenIsToldOnce)
{
    const std::tuple<QByteArray, QByteArray, QByteArray, QByteArray> cases[] = {
        {base + "/missing", "x", "Append", "Error in the method Logger::setType(Append)\n"},
        {base, "", "OVERwrite", "Error in the method Logger::setType(OVERwrite)\n"}, // the folder
        {{}, {}, "append", "Error in the method Logger::setType(append)\n"},
        {base + "/missing", "x", "replace", ""},
        {"", base.mid(1) + "/print.log", "append", ""}, // under "/"
        {base + "/", "/double.log", "append", ""}};
    for (const auto &[basedir, filename, type, output] : cases) {
        configure("debug", basedir, filename, type);
        testing::internal::CaptureStdout();
        Logger({}).fatal(u"lost, or not"_s);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), output.toStdString());
    }
    for (const QString &name : {u"print.log"_s, u"double.log"_s})
        EXPECT_EQ(lines(folder.path(name)), "DEBUG: Start Logger\nFATAL: lost, or not\n");
}

TEST_F(Log, AFullDiskLosesLinesAndNothingElse)
{
    configure("info", base, "print.log", "overwrite");
    Logger logger({});
    logger.info(u"before"_s);
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const auto onSize = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full = {40, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    for (int i = 0; i < 1000; ++i)
        logger.error(QString(100, u'x'));
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, onSize);
    logger.info(u"after"_s);
    const QByteArray written = lines(file);
    EXPECT_TRUE(written.startsWith("INFO: before\n"));
    EXPECT_TRUE(written.endsWith("\nINFO: after\n"));
    EXPECT_LT(written.size(), 20'000);
}

TEST_F(Log, TheManagerKeepsLoggersByKey)
{
    HLogManager manager;
    EXPECT_EQ(manager.getLog({}), nullptr);
    EXPECT_EQ(manager.getLog(u"default"_s), nullptr);
    EXPECT_EQ(manager.getLog(u"sales"_s), nullptr);
    configure("info", base, "print.log", "append");
    manager.set(u"first"_s, {});
    manager.set(u"sales"_s, u"sales"_s);
    Logger *const first = manager.getLog(u"default"_s);
    EXPECT_EQ(manager.getLog({}), first);
    manager.set(u"second"_s, u"default"_s);
    EXPECT_NE(manager.getLog({}), first);

    first->info(u"replaced"_s); // each has the file open for itself
    manager.getLog(u"sales"_s)->info(u"sales"_s);
    manager.getLog({})->info(u"second"_s);
    EXPECT_EQ(lines(file), "INFO: replaced\nINFO: sales\nINFO: second\n");
}

TEST(Singleton, ThreadsShareTheOneThatIsCreated)
{
    static std::atomic<int> created = 0;
    struct Probe
    {
        Probe() { value = ++created; }
        int value;
    };
    std::array<Probe *, 8> seen = {};
    {
        std::vector<std::jthread> threads;
        threads.reserve(seen.size());
        for (Probe *&probe : seen)
            threads.emplace_back([&probe] { probe = SyncSingleton<Probe>::instance(); });
    }
    for (const Probe *const probe : seen)
        EXPECT_EQ(probe->value, 1);
    EXPECT_EQ(created, 1);
}

// SPDX-License-Identifier: MIT
#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "log/hlogmanager.h"
#include "tests/support.h"

#include <QDateTime>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class Log : public testing::Test
{
protected:
    Log()
    {
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("TZ", "TILL-5:30"); // five hours and a half to the east
        testing::internal::CaptureStderr();
    }
    ~Log() override { EXPECT_EQ(testing::internal::GetCapturedStderr(), ""); }

    /// Sets the configuration of every Logger from now on; "HERE" stands for the test's folder.
    void configure(QByteArray settings = "level = info; type = append; basedir = \"HERE\";"
                                         " filename = \"caff\u00e8\";")
    {
        settings.replace("HERE", folder.path().toUtf8());
        const support::Home home("zentaro : { logger : { " + settings + " }; };");
        SyncSingleton<ZTConfiguration>::instance()->readFile(home.configurationPath(), u"cfg"_s);
    }

    QByteArray lines() const { return support::withoutTimeStamps(support::readFile(file)); }

    const support::Folder folder;
    const QString file = folder.path(u"caff\u00e8"_s);
};

} // namespace

TEST_F(Log, IsWhatTheConfigurationSays)
{
    const QByteArray all =
        "DEBUG: Start Logger\nDEBUG: d\nINFO: i\nWARNING: w\nERROR: e\nFATAL: f\n: ?\n";
    const auto from = [&](const char *name) { return all.mid(all.indexOf(name)); };
    const QByteArray print = "basedir = \"HERE\"; filename = \"caff\u00e8\"; ";
    const QByteArray error = "Error in the method Logger::setType(";
    const std::tuple<QByteArray, QByteArray, QByteArray> cases[] = {
        {print + "level = debug; type = append;", "", "old\n" + all},
        {print + "level = \"\"; type = APPEND;", "", "old\n" + all},
        {print + "level = loud; type = Overwrite;", "", all},
        {print + "type = overwrite;", "", all},
        {print + "level = info; type = append;", "", "old\n" + from("INFO")},
        {print + "level = wArNiNg; type = append;", "", "old\n" + from("WARNING")},
        {print + "level = ERROR; type = oVERWRITE;", "", from("ERROR")},
        {print + "level = Fatal; type = append;", "", "old\n" + from("FATAL")},
        {print + "type = replace;", "", "old\n"},
        {print, "", "old\n"},
        {"type = append; basedir = \"\"; filename = \"./HERE/caff\u00e8\";", "", "old\n" + all},
        {"type = Append; basedir = \"HERE/missing\"; filename = x;", error + "Append)\n", "old\n"},
        {"type = OVERwrite; basedir = \"HERE\";", error + "OVERwrite)\n", "old\n"}, // the folder
        {"type = append; basedir = \"HERE/\xE8\"; filename = x;", error + "append)\n", "old\n"},
        {"type = append;", error + "append)\n", "old\n"}, // "/"
        {"type = append; basedir = \"/dev\"; filename = full;", "", "old\n"}};
    for (const auto &[settings, output, content] : cases) {
        support::writeFile(file, "old\n");
        configure(settings);
        testing::internal::CaptureStdout();
        Logger logger(u"any"_s);
        logger.debug(u"d"_s);
        logger.info(u"i"_s);
        logger.warning(u"w"_s);
        logger.error(u"e"_s);
        logger.fatal(u"f"_s);
        logger.write(Logger::Level(5), u"?"_s);
        logger.write(Logger::Level(-1), u"below every threshold"_s);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), output.toStdString());
        EXPECT_EQ(lines(), content) << settings.toStdString();
    }
}

TEST_F(Log, OnlyAKnownTypeOpensTheFileAnew)
{
    configure();
    Logger logger({});
    logger.info(u"two\nlines, \u00e0 1\u20ac"_s);
    logger.setType(u"other"_s);
    logger.info(u"still open"_s);
    EXPECT_EQ(lines(), "INFO: two\nlines, \u00e0 1\u20ac\nINFO: still open\n"_ba);
    logger.setType(u"overwrite"_s);
    logger.setLevel(u"warning"_s);
    logger.info(u"dropped"_s);

    const QDateTime before = QDateTime::currentDateTimeUtc();
    logger.fatal(u"anew"_s);
    EXPECT_EQ(lines(), "FATAL: anew\n");
    auto stamp = QDateTime::fromString(QString::fromLatin1(support::readFile(file).mid(1, 23)),
                                       u"MM-dd-yyyy hh:mm:ss:zzz"_s);
    stamp.setTimeSpec(Qt::UTC);
    EXPECT_GE(stamp, before.addSecs(19'800));
    EXPECT_LE(stamp, QDateTime::currentDateTimeUtc().addSecs(19'800));
    logger.setLevel(u"loud"_s);
    logger.debug(u"everything"_s);
    EXPECT_EQ(lines(), "FATAL: anew\nDEBUG: everything\n");
}

TEST_F(Log, AFullDiskLosesLinesAndNothingElse)
{
    configure();
    Logger logger({});
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit full = {40, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    for (int i = 0; i < 1000; ++i)
        logger.error(QString(100, u'x'));
    setrlimit(RLIMIT_FSIZE, &limit);
    logger.info(u"after"_s);
    EXPECT_TRUE(lines().endsWith("\nINFO: after\n"));
    EXPECT_LT(lines().size(), 20'000);
}

TEST_F(Log, TheManagerKeepsLoggersByKey)
{
    HLogManager manager;
    for (const QString &key : {u""_s, u"default"_s, u"sales"_s})
        EXPECT_EQ(manager.getLog(key), nullptr);
    configure();
    manager.set({}, {});
    manager.set({}, u"sales"_s);
    Logger *const replaced = manager.getLog(u"default"_s);
    EXPECT_NE(manager.getLog(u"sales"_s), replaced);
    manager.set({}, u"default"_s);
    manager.getLog(u"sales"_s)->info(u"sales"_s);
    replaced->info(u"replaced"_s); // each has the file open for itself
    manager.getLog({})->info(u"default"_s);
    EXPECT_EQ(lines(), "INFO: sales\nINFO: replaced\nINFO: default\n");
    EXPECT_NE(manager.getLog({}), replaced);
}

TEST(Singleton, IsCreatedOnceForAllThreadsAndGoneAtExit)
{
    static std::atomic<int> created = 0;
    struct Probe
    {
        Probe() { QThread::msleep(20); } // the others come meanwhile
        ~Probe() { std::fputs("gone\n", stderr); }
        const int number = ++created;
    };
    {
        std::jthread threads[8];
        for (std::jthread &thread : threads)
            thread = std::jthread([] { EXPECT_EQ(SyncSingleton<Probe>::instance()->number, 1); });
    }
    EXPECT_EQ(created, 1);
    EXPECT_EXIT(std::exit(0), testing::ExitedWithCode(0), "^gone\n$");
}

// SPDX-License-Identifier: MIT
#include "log/hlogmanager.h"

using namespace Qt::StringLiterals;

namespace {

QString entryName(const QString &key) { return key.isEmpty() ? u"default"_s : key; }

} // namespace

HLogManager::~HLogManager() { qDeleteAll(loggers); }

void HLogManager::set(QString const &name, QString const &key)
{
    auto logger = std::make_unique<Logger>(name);
    Logger *&entry = loggers[entryName(key)];
    if (entry)
        replaced.emplace_back(entry);
    entry = logger.release();
}

Logger *HLogManager::getLog(QString const &key)
{
    // The empty key leaves its entry behind, also where that holds nothing yet.
    return key.isEmpty() ? loggers[entryName(key)] : loggers.value(key);
}

// SPDX-License-Identifier: MIT
#include "util/hlibrary.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "db/databasemanager.h"
#include "text/filename.h"
#include "text/localeencoding.h"
#include "text/standardoutput.h"

#include <QComboBox>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The types of documents, and the groups of their settings.
constexpr std::pair<QLatin1StringView, QLatin1StringView> copyNumberGroups[] = {
    {"order"_L1, "doc"_L1},          {"prefiscal"_L1, "prefiscaldoc"_L1},
    {"fiscal"_L1, "fiscaldoc"_L1},   {"receipt"_L1, "receiptdoc"_L1},
    {"invoice"_L1, "invoicedoc"_L1}, {"delivery"_L1, "deliverydoc"_L1},
    {"report"_L1, "reportdoc"_L1},
};

} // namespace

QString HLibrary::setting(const QString &key)
{
    return SyncSingleton<ZTConfiguration>::instance()->getStrValue(key);
}

QString HLibrary::dataPath() { return QFile::decodeName(text::homeFolder()); }

void HLibrary::touch(const QString &path)
{
    if (path.isEmpty()) // of which the toolkit complains on standard error
        return;
    QFile file(text::nameOfNewFile(QFile::encodeName(path)));
    if (file.open(QIODevice::WriteOnly))
        file.close();
}

QString HLibrary::getNewRand()
{
    std::srand(unsigned(std::time(nullptr)));
    return QString::number(std::rand());
}

int HLibrary::comboBoxIndexOf(QComboBox *box, const QString &text)
{
    // The toolkit's own search compares values, not texts: a number equals several texts, and a
    // separator none.
    for (int index = 0; index < box->count(); ++index) {
        if (box->itemText(index) == text)
            return index;
    }
    return -1;
}

QString HLibrary::copyNumber(const QString &documentType)
{
    const QString type = documentType.toLower();
    const auto *const found =
        std::ranges::find(copyNumberGroups, type, [](auto &row) { return row.first; });
    const bool known = found != std::end(copyNumberGroups);
    if (!known)
        text::printLine("Error into HLibrary::copyNumber::documentPath: " + text::toLocale(type));
    return setting("zentaro."_L1 + (known ? found->second : "prefiscaldoc"_L1) + ".copyNumber"_L1);
}

QString HLibrary::truncateDecimal(double value)
{
    constexpr double Lowest = std::numeric_limits<qint32>::min();
    constexpr double Highest = std::numeric_limits<qint32>::max();
    const double product = value * 1000;
    const int thousandths = std::isnan(product) ? 0 : int(std::clamp(product, Lowest, Highest));
    const int hundredths = thousandths / 10 + (thousandths % 10 >= 5 ? 1 : 0);
    const auto [units, decimals] = std::div(std::abs(hundredths), 100);
    return (hundredths < 0 ? "-"_L1 : ""_L1) + QString::number(units) + u'.'
           + QString::number(decimals).rightJustified(2, u'0');
}

QSqlDatabase *HLibrary::newDBConnection(const QString &connectionName)
{
    return SyncSingleton<DatabaseManager>::instance()->createConnection(
        u"QPSQL7"_s, dbname(), username(), password(), hostname(), connectionName);
}

QString HLibrary::pathWithBinaryFile(const QString &file)
{
    return setting(u"zentaro.bin.path"_s) + u'/' + file;
}

QString HLibrary::getCoreFile()
{
    const QStringList names =
        QDir::current().entryList({u"core*"_s}, QDir::Files | QDir::CaseSensitive);
    return names.value(0, u""_s);
}

// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/config.h"

#include <QFile>

namespace configtool {

using namespace Qt::StringLiterals;
using namespace tools;

namespace {

/// A file and what a lookup of one of its keys goes through.
struct KeyInFile
{
    KeyInFile(const QByteArray &content, const QString &key);

    QByteArray withValue(const QByteArray &value) const;
    QByteArray without() const;
    /// Every other setting of the file, with its value.
    QStringList others() const;

    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    qsizetype siblingBefore() const;
    QByteArray leadOf(qsizetype index) const;
    QByteArray withNew(const QByteArray &setting) const;

    const QByteArray &content;
    const QString key;
    const QStringList names = key.split(u'.');
    const Outline outline = readOutline(content);
    qsizetype group = 0;             // that the first names lead to, of several the first
    qsizetype depth = 0;             // the number of these names
    std::vector<qsizetype> settings; // of the key, in file order
    // The setting that a lookup finds, or would if it had a value: of a group the last, of several
    // groups that of the first with a value. -1 for none.
    qsizetype found = -1;
};

KeyInFile::KeyInFile(const QByteArray &content, const QString &key)
    : content(content)
    , key(key)
{
    const qsizetype top = outline.topGroup();
    std::vector<qsizetype> depths(outline.entries.size(), -1); // of the groups on the key's way
    depths.front() = 0;
    for (qsizetype i = 1; i < qsizetype(depths.size()); ++i) {
        const qsizetype before = depths[size_t(entry(i).parent)];
        if (before < 0 || entry(i).name != names[before]
            || entry(i).isGroup == (before + 1 == names.size()))
            continue;
        if (!entry(i).isGroup) {
            settings.push_back(i);
            if (found < 0 || entry(found).value.isEmpty() || entry(found).parent == entry(i).parent)
                found = i;
        } else if (before > 0 || i == top) {
            depths[size_t(i)] = before + 1;
            if (before + 1 > depth) {
                depth = before + 1;
                group = i;
            }
        }
    }
}

QStringList KeyInFile::others() const
{
    QStringList all;
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
        const QString path = outline.pathOf(i);
        if (!entry(i).isGroup && path != key)
            all.append(path + " = "_L1 + entry(i).value);
    }
    return all;
}

QByteArray KeyInFile::withValue(const QByteArray &value) const
{
    const auto [begin, end] = found < 0 ? Extent{} : entry(found).body;
    const QByteArray present = content.sliced(begin, end - begin);
    const Setting *const known = settingOf(key);
    const bool isPlain =
        found >= 0
            ? present.size() < 2 || !present.startsWith('"') || !present.endsWith('"')
            : known && (known->kind == SettingKind::Number || known->kind == SettingKind::Switch);
    const QByteArray written =
        isPlain && !value.isEmpty() && value == value.trimmed() ? value : '"' + value + '"';
    return found < 0 ? withNew(names.last().toLatin1() + " = " + written + ';')
                     : QByteArray(content).replace(begin, end - begin, written);
}

/// The member of the group that a complete file has right before what is to be added there; the
/// last one for what no complete file has; -1 for none.
qsizetype KeyInFile::siblingBefore() const
{
    const QStringList order =
        depth + 1 == names.size() && depth > 0 ? knownWords(names[depth - 1]) : knownGroups();
    const qsizetype place = order.indexOf(names[depth]);
    qsizetype best = -1;
    qsizetype bestPlace = 0;
    for (auto i = group + 1; i < qsizetype(outline.entries.size()); ++i) {
        const qsizetype childPlace = order.indexOf(entry(i).name);
        if (entry(i).parent == group
            && (place < 0 || (childPlace >= bestPlace && childPlace < place))) {
            best = i;
            bestPlace = childPlace;
        }
    }
    return best;
}

/// A line end, and the blanks with which the line of an entry begins.
QByteArray KeyInFile::leadOf(qsizetype index) const
{
    const std::string_view before(content.data(), size_t(entry(index).text.begin));
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    const qsizetype blanks = qsizetype(std::min(line.find_first_not_of(" \t"), line.size()));
    return (content.contains("\r\n") ? "\r\n" : "\n") + QByteArray(line.data(), blanks);
}

/// The file with a new setting, in new groups where those of the key are missing.
QByteArray KeyInFile::withNew(const QByteArray &setting) const
{
    const QByteArray step = "    ";
    const qsizetype before = siblingBefore();
    QByteArray lead = before >= 0 ? leadOf(before) : group > 0 ? leadOf(group) + step : "\n"_ba;
    QByteArray begin;
    QByteArray end;
    for (const QString &name : names.sliced(depth, names.size() - depth - 1)) {
        begin += lead + name.toLatin1() + " : {";
        end.prepend(lead + "};");
        lead += step;
    }
    const QByteArray text = begin + lead + setting + end;
    if (group == 0 && before < 0)
        return text.trimmed() + '\n' + content;
    return QByteArray(content).insert(before < 0 ? entry(group).body.begin : entry(before).text.end,
                                      text);
}

QByteArray KeyInFile::without() const
{
    constexpr auto Blanks = " \t\r";
    std::string left = content.toStdString();
    for (size_t i = settings.size(); i-- > 0;) {
        const Extent &text = entry(settings[i]).text;
        const std::string_view before(left.data(), size_t(text.begin));
        const auto end = size_t(text.end);
        const size_t begin = before.find_last_not_of(Blanks) + 1;
        const size_t lineEnd = std::min(left.find_first_not_of(Blanks, end), left.size());
        const bool isLine = (begin == 0 || left[begin - 1] == '\n')
                            && (lineEnd == left.size() || left[lineEnd] == '\n');
        left.erase(begin, (isLine ? lineEnd + 1 : end) - begin);
    }
    return QByteArray::fromStdString(left);
}

/// What was made of the content, if it is read as it was meant.
EditedContent verified(const KeyInFile &before, const QByteArray &edited, const QString &value)
{
    libconfig::Config config;
    config.readContent(edited, {}, u"cfg"_s);
    // A value that goes on over the end of its line may have taken in other settings.
    const bool ranOn = before.found >= 0 && before.entry(before.found).value.contains(u'\n');
    if (!ranOn && config.lookup(before.key) == value
        && KeyInFile(edited, before.key).others() == before.others())
        return {edited, {}};
    return {before.content, u"the file has faults around it, which `zentaro config check` tells"_s};
}

} // namespace

EditedContent withSetting(const QByteArray &content, const QString &key, const QString &value)
{
    const QString stored = storedValue(settingOf(key), value);
    const QByteArray bytes = stored.toLatin1();
    if (QString::fromLatin1(bytes) != stored)
        return {content, u"the file holds ISO 8859-1 alone"_s};
    if (bytes.contains(';') || bytes.contains('"') || bytes.contains('\n'))
        return {content, u"a value can hold no `;`, no double quote and no line end"_s};
    if (!key.contains(u'.') || key.split(u'.').contains(QString()))
        return {content, u"no key: it is zentaro.GROUP.WORD"_s};
    const KeyInFile present(content, key);
    return verified(present, present.withValue(bytes), stored);
}

EditedContent withoutSetting(const QByteArray &content, const QString &key)
{
    const KeyInFile present(content, key);
    return verified(present, present.without(), {});
}

} // namespace configtool

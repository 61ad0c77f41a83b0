// SPDX-License-Identifier: MIT
#include "tools/config/settingedit.h"

#include "config/config.h"
#include "tools/config/outline.h"
#include "tools/knownkeys.h"

#include <QFile>

#include <utility>
#include <vector>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// A file and what a lookup of one of its keys goes through.
class KeyInFile
{
public:
    KeyInFile(const QByteArray &content, const QString &key);

    QByteArray withValue(const QByteArray &value) const;
    QByteArray without() const;
    /// Whether the value goes on over the end of its line, which may have taken in other settings.
    bool runsOn() const;
    /// Every other setting of the file, with its value.
    QStringList others() const;

    const QByteArray &content;
    const QString key;

private:
    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    std::vector<qsizetype> childrenOf(qsizetype group) const;
    qsizetype found() const;
    qsizetype siblingBefore(qsizetype group) const;
    QByteArray leadOf(qsizetype index) const;
    QByteArray withNew(const QByteArray &setting) const;

    const QStringList names; // the key's
    const Outline outline;
    std::vector<qsizetype> groups{0}; // that the first names lead to; the file at first
    qsizetype depth = 0;              // the number of these names
    std::vector<qsizetype> settings;  // of the key, in file order
};

KeyInFile::KeyInFile(const QByteArray &content, const QString &key)
    : content(content)
    , key(key)
    , names(key.split(u'.'))
    , outline(readCfgOutline(content))
{
    std::vector<qsizetype> inside = groups;
    for (; !inside.empty() && depth < names.size(); ++depth) {
        groups = std::exchange(inside, {});
        const bool isLast = depth + 1 == names.size();
        for (const qsizetype group : groups) {
            for (const qsizetype child : childrenOf(group)) {
                const bool isSetting = entry(child).kind == Entry::Kind::Setting;
                if (entry(child).name != names[depth] || isSetting != isLast)
                    continue;
                if (isSetting)
                    settings.push_back(child);
                else if (depth > 0 || child == outline.topGroup())
                    inside.push_back(child);
            }
        }
    }
    --depth;
}

std::vector<qsizetype> KeyInFile::childrenOf(qsizetype group) const
{
    std::vector<qsizetype> children;
    for (auto i = group + 1; i < qsizetype(outline.entries.size()); ++i) {
        if (entry(i).parent == group)
            children.push_back(i);
    }
    return children;
}

/// The setting that a lookup finds, or would if it had a value: of a group the last, of several
/// groups that of the first with a value. -1 for none.
qsizetype KeyInFile::found() const
{
    qsizetype best = -1;
    for (const qsizetype setting : settings) {
        if (best < 0 || entry(best).value.isEmpty() || entry(best).parent == entry(setting).parent)
            best = setting;
    }
    return best;
}

bool KeyInFile::runsOn() const
{
    const qsizetype setting = found();
    return setting >= 0 && entry(setting).value.contains(u'\n');
}

QStringList KeyInFile::others() const
{
    QStringList all;
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
        const QString path = outline.pathOf(i);
        if (entry(i).kind == Entry::Kind::Setting && path != key)
            all.append(path + " = "_L1 + entry(i).value);
    }
    return all;
}

QByteArray KeyInFile::withValue(const QByteArray &value) const
{
    const qsizetype setting = found();
    const Setting *const known =
        names.size() == 3 ? tools::findSetting(names[1], names[2]) : nullptr;
    const bool isWord =
        known && (known->kind == SettingKind::Number || known->kind == SettingKind::Switch);
    bool isQuoted = value.isEmpty() || value != value.trimmed() || (setting < 0 && !isWord);
    if (setting >= 0) {
        const auto [begin, end] = entry(setting).body;
        const QByteArray present = content.sliced(begin, end - begin);
        isQuoted |= present.size() > 1 && present.startsWith('"') && present.endsWith('"');
    }
    const QByteArray written = isQuoted ? '"' + value + '"' : value;
    if (setting < 0)
        return withNew(names.last().toLatin1() + " = " + written + ';');
    const auto [begin, end] = entry(setting).body;
    return QByteArray(content).replace(begin, end - begin, written);
}

/// The member of the group that a complete file has right before what is to be added there; the
/// last one for what no complete file has; -1 for none.
qsizetype KeyInFile::siblingBefore(qsizetype group) const
{
    const QStringList order = depth + 1 == names.size() && depth > 0
                                  ? tools::knownWords(names[depth - 1])
                                  : tools::knownGroups();
    const qsizetype place = order.indexOf(names[depth]);
    qsizetype best = -1;
    qsizetype bestPlace = -1;
    for (const qsizetype child : childrenOf(group)) {
        const qsizetype childPlace = order.indexOf(entry(child).name);
        if (place < 0 || (childPlace >= qMax(bestPlace, qsizetype(0)) && childPlace < place)) {
            best = child;
            bestPlace = childPlace;
        }
    }
    return best;
}

/// A line end, and the blanks with which the line of an entry begins.
QByteArray KeyInFile::leadOf(qsizetype index) const
{
    const qint64 begin = entry(index).text.begin;
    const qint64 lineBegin = begin > 0 ? content.lastIndexOf('\n', begin - 1) + 1 : 0;
    qint64 end = lineBegin;
    while (end < begin && (content[end] == ' ' || content[end] == '\t'))
        ++end;
    return (content.contains("\r\n") ? "\r\n" : "\n") + content.sliced(lineBegin, end - lineBegin);
}

/// The file with a new setting, in new groups where those of the key are missing.
QByteArray KeyInFile::withNew(const QByteArray &setting) const
{
    const QByteArray step = "    ";
    const qsizetype group = groups.front();
    const qsizetype before = siblingBefore(group);
    QByteArray lead = "\n";
    if (before >= 0)
        lead = leadOf(before);
    else if (group > 0)
        lead = leadOf(group) + step;
    QByteArray begin;
    QByteArray end;
    for (qsizetype i = depth; i + 1 < names.size(); ++i) {
        begin += lead + names[i].toLatin1() + " : {";
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
    QByteArray left = content;
    for (auto setting = settings.rbegin(); setting != settings.rend(); ++setting) {
        auto [begin, end] = entry(*setting).text;
        const auto isBlank = [&](qint64 at) { return QByteArrayView(" \t\r").contains(left[at]); };
        while (begin > 0 && isBlank(begin - 1))
            --begin;
        qint64 lineEnd = end;
        while (lineEnd < left.size() && isBlank(lineEnd))
            ++lineEnd;
        const bool isLine = (begin == 0 || left[begin - 1] == '\n')
                            && (lineEnd == left.size() || left[lineEnd] == '\n');
        left.remove(begin, (isLine ? qMin(lineEnd + 1, qint64(left.size())) : end) - begin);
    }
    return left;
}

/// What was made of the content, if it is read as it was meant.
EditedContent verified(const KeyInFile &before, const QByteArray &edited, const QString &value)
{
    libconfig::Config config;
    config.readContent(edited, {}, u"cfg"_s);
    if (config.lookup(before.key) == value && !before.runsOn()
        && KeyInFile(edited, before.key).others() == before.others())
        return {edited, {}};
    return {before.content, u"the file has faults around it, which `zentaro config check` tells"_s};
}

} // namespace

EditedContent withSetting(const QByteArray &content, const QString &key, const QString &value)
{
    const QStringList names = key.split(u'.');
    const Setting *const known =
        names.size() == 3 ? tools::findSetting(names[1], names[2]) : nullptr;
    const bool isFile =
        known && (known->kind == SettingKind::Folder || known->kind == SettingKind::FileName);
    const QByteArray bytes = isFile ? QFile::encodeName(value) : value.toLatin1();
    if (!isFile && QString::fromLatin1(bytes) != value)
        return {content, u"the file holds ISO 8859-1 alone"_s};
    if (bytes.contains(';') || bytes.contains('"') || bytes.contains('\n'))
        return {content, u"a value can hold no `;`, no double quote and no line end"_s};
    if (names.size() < 2 || names.contains(QString()))
        return {content, u"no key: it is zentaro.GROUP.WORD"_s};
    const KeyInFile present(content, key);
    return verified(present, present.withValue(bytes), QString::fromLatin1(bytes));
}

EditedContent withoutSetting(const QByteArray &content, const QString &key)
{
    const KeyInFile present(content, key);
    return verified(present, present.without(), {});
}

} // namespace configtool

// SPDX-License-Identifier: MIT
// A configuration of any bytes, read in both forms and asked for its settings: the store, which is
// made for speed, gives the tree and the answers that a plain reading of the form gives.
#include "config/config.h"
#include "fuzz/expect.h"

#include <QDomDocument>
#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

/// The document of a Config, as the plain lookup walks it.
class Opened : public Config
{
public:
    Opened(const QByteArray &content, const QString &form)
    {
        readContent(content, u"conf"_s, form);
    }
    QDomNode top() const { return document->firstChildElement().firstChild(); }
};

struct Group
{
    QString name;
    std::vector<std::pair<QString, QString>> settings;
    std::vector<Group> groups;
    bool hasMember = false;
};

/// The "cfg" form, read character by character as it is defined.
class PlainReader
{
public:
    explicit PlainReader(const QString &text)
        : text(text)
    {
    }

    /// True at the `}` that closes the group, false at the end of the file.
    bool readBody(Group &group)
    {
        QString name;
        while (at < text.size()) {
            const QChar c = text[at++];
            if (c == u'}') {
                upTo(u';');
                return true;
            }
            if (c == u':') {
                upTo(u'{');
                readGroup(group, trimmed(std::exchange(name, {})));
            } else if (c == u'=') {
                set(group, trimmed(std::exchange(name, {})), trimmed(upTo(u';')).remove(u'"'));
            } else {
                name += c;
            }
        }
        return false;
    }

private:
    QString upTo(QChar end)
    {
        const qsizetype found = text.indexOf(end, at);
        const qsizetype begin = std::exchange(at, found < 0 ? text.size() : found + 1);
        return text.mid(begin, found < 0 ? -1 : found - begin);
    }

    void readGroup(Group &parent, const QString &name)
    {
        parent.hasMember = true;
        Group group{name, {}, {}};
        readBody(group);
        if (group.hasMember)
            parent.groups.push_back(group);
    }

    static void set(Group &group, const QString &name, const QString &value)
    {
        group.hasMember = true;
        for (auto &[present, itsValue] : group.settings) {
            if (present == name) {
                itsValue = value;
                return;
            }
        }
        group.settings.emplace_back(name, value);
    }

    static QString trimmed(QString run)
    {
        const auto isBlank = [](QChar c) { return u" \t\n\v\f\r\u00A0"_s.contains(c); };
        run.truncate(run.indexOf(u'\0') < 0 ? run.size() : run.indexOf(u'\0'));
        while (!run.isEmpty() && isBlank(run.back()))
            run.chop(1);
        while (!run.isEmpty() && isBlank(run.front()))
            run.remove(0, 1);
        return run;
    }

    const QString text;
    qsizetype at = 0;
};

QString treeText(const Group &group)
{
    QString text = group.name + u'\n';
    for (const auto &[name, value] : group.settings)
        text += name + " = "_L1 + value + u'\n';
    for (const Group &nested : group.groups)
        text += treeText(nested);
    return text;
}

/// The lookup step, field by field.
QString plainLookup(const QDomNode &node, const QStringList &fields)
{
    if (!node.isElement() || node.nodeName() != fields.value(0))
        return u""_s;
    if (fields.value(2).isEmpty())
        return node.toElement().attribute(fields.value(1));
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (const QString value = plainLookup(child, fields.sliced(1)); !value.isEmpty())
            return value;
    }
    return u""_s;
}

using Answers = std::vector<std::pair<QString, QString>>;

/// What is asked for each of the first settings, and what the store answers.
Answers answersOf(const Config &config)
{
    Answers answers;
    config.forEachSetting([&](const QString &setting, const QString &) {
        constexpr size_t MaxAsked = 20; // keys grow long where groups nest deep
        if (answers.size() >= MaxAsked)
            return;
        for (const QString &key : {setting, setting + u".x"_s, setting.section(u'.', 0, -2),
                                   setting.section(u'.', 1), setting.section(u'.', 0, 0)})
            answers.emplace_back(key, config.lookup(key));
    });
    return answers;
}

/// The store answers the same before and after its tree is taken.
void expectPlainAnswers(const Opened &config)
{
    const Answers answers = answersOf(config);
    const QDomNode top = config.top();
    for (const auto &[key, answer] : answers) {
        fuzz::expectEqual(answer, plainLookup(top, key.split(u'.')));
        fuzz::expectEqual(answer, config.lookup(key));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content = fuzz::content(data, size);
    Group file{u"conf"_s, {}, {}};
    PlainReader(QString::fromLatin1(content)).readBody(file);
    const QString expected = file.hasMember ? treeText(file) : QString();
    const Opened cfg(content, u"cfg"_s);
    expectPlainAnswers(cfg);
    fuzz::expectEqual(cfg.configTreeText(), "Tree \n"_L1 + expected);
    expectPlainAnswers(Opened(content, u"xml"_s));
    return 0;
}

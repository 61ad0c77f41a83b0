// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>

#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QDomDocument;
class QDomNode;
class QTextStream;
class QTreeWidget;
class QTreeWidgetItem;

namespace libconfig {

class CfgContent;
class ConfigTree;
struct KeyPath;

/// The configuration store: a file of named groups and their settings, read into a tree and asked
/// by dotted keys such as "zentaro.logger.level".
///
/// Two formats fill the same tree. "cfg" is the block-structured text `group : { key = value; };`
/// in ISO 8859-1; "xml" has an element per group and an attribute per setting. In the tree a group
/// is an element and a setting is an attribute of its group's element; above the top-level groups
/// stands the file element, whose tag name is the file name.
///
///     const libconfig::Config config(u"/etc/till.conf"_s, u"cfg"_s);
///     if (config.lookup(u"till.receiptdoc.printTelephone"_s) == u"true"_s)
///         ...
///
/// It stands on two floors. Reading and asking a "cfg" file, which is loadFile() and lookup(key),
/// needs zentaro_config alone; who calls anything else links zentaro_config_tree, and for the views
/// zentaro_config_views.
class Config
{
public:
    /// An object without a document: every lookup answers empty text.
    Config();
    Config(QString const &fileName, QString const &fileType)
        : Config()
    {
        constructor(fileName, fileType);
    }
    Q_DISABLE_COPY_MOVE(Config)
    ~Config();

    /// Forgets the present tree and reads the file. Any format word but "cfg" and "xml" loads
    /// nothing. A "cfg" file that cannot be read is told on standard output; nothing else is ever
    /// reported, and what cannot be read leaves an empty tree.
    void readFile(QString const &fileName, QString const &fileType)
    {
        constructor(fileName, fileType);
    }
    void constructor(QString const &fileName, QString const &fileType);
    /// The same with the content of the file at hand.
    void readContent(const QByteArray &content, QString const &fileName, QString const &fileType);

    /// Opens `stream` on `fileName`, or on `name`; whatever it was used for before is forgotten. A
    /// file that cannot be read (a folder cannot) is told in one line on standard output and
    /// answers false.
    bool openFile() { return openFile(fileName); }
    bool openFile(QString const &name);
    void closeFile() { stream.reset(); }

    /// Reads the whole "cfg" file `fileName`, which joins what was read before. The stream is open
    /// then where a `}` at the top level ended the reading, behind its `;`.
    void loadFile();
    /// Reads the body of the group `name`, up to and including its `};`, from the open stream,
    /// which must be one that can be read again from where the group ends: no pipe. The group's
    /// element joins `parent` with its first member; without members it never does.
    void loadFile(QString const &name, QDomNode parent);
    /// Reads the whole "xml" file; one that is missing, not well-formed, over 64 MiB or nested more
    /// than MaxXmlDepth deep leaves an empty tree.
    void loadXmlFile();
    /// The toolkit walks up to the root of the tree for every element that joins it: the time that
    /// reading takes grows with the square of the depth.
    static constexpr int MaxXmlDepth = 1'000;
    /// Skips the input up to and including `c`; false when the end of the file came first.
    bool jump(char c);

    /// The setting of a dotted key: fields are group names from the first top-level group down,
    /// the last one is the setting's name (or the one before an empty field). Only the first
    /// top-level group is looked at; among groups of the same name the first non-empty value wins.
    /// Answers an empty, non-null text when there is none.
    QString lookup(QString const &key) const;
    /// The same below `node`, whose tag name the first field must be.
    QString lookup(QDomNode node, QString const &key) const;

    /// Visits every setting under its dotted name, in file order, the top-level groups after the
    /// first and the settings outside any group included.
    void forEachSetting(
        const std::function<void(const QString &key, const QString &value)> &visit) const;

    // The writers. An empty name means `fileName`. A file is written when all of it is there, or
    // stays as it was: what cannot be written, or would be over 64 MiB, is told in one line on
    // standard output and answers false. An empty tree writes an empty file. Settings stand in file
    // order.

    /// Writes the "cfg" form in ISO 8859-1; a character that it lacks becomes `?`. Of the top-level
    /// groups only the first is written.
    bool buildConfigFile(QString name);
    /// Writes one group and everything below it, in the encoding of the text stream.
    void buildConfigFile(QDomNode node, QTextStream &ts) const;
    /// Writes the XML form in UTF-8, the first top-level group only. Nothing is escaped, and
    /// settings outside any group go before it in the "cfg" syntax.
    bool buildConfigXmlFile(QString name);
    /// Writes one group and everything below it, in the encoding of the text stream.
    void buildConfigXmlFile(QDomNode node, QTextStream &ts) const;
    /// What they write, by the format word "cfg" or "xml"; none over 64 MiB.
    std::optional<QByteArray> writtenAs(const QString &format) const;
    /// Prints "Tree " and every group and setting on standard output, in ISO 8859-1.
    void printConfigTree() const;
    /// Prints one group and everything below it.
    void printConfigTree(QDomNode node) const;
    /// What they print.
    QString configTreeText() const;
    QString configTreeText(QDomNode node) const;

    // The tree views; who calls these links zentaro_config_views.

    /// A new view of the tree in the one column "ConfigurationFile", owned by the caller: an item
    /// per group, beginning with the file's, and in it an item `key = value` per setting before
    /// those of the nested groups. Without a tree it has no items.
    QTreeWidget *buildConfigListView();
    QTreeWidget *newConfigListView() { return buildConfigListView(); }
    /// Adds the items of `node` and everything below it to the view, or to an item.
    void buildConfigListView(QDomNode node, QTreeWidget *view);
    void buildConfigListView(QDomNode node, QTreeWidgetItem *item);
    /// Rebuilds the tree from the view and saves it under `fileName` in its own format; answers
    /// whether it was saved. A null view changes nothing. Items of the view's own making stay what
    /// they are, groups or settings; of others, those with children are groups and so are those
    /// without a `=` in their text. Of two settings of one name in a group the later counts.
    bool loadListView(QTreeWidget *view);
    /// Adds what `item` is, a group with everything below it or a setting, to `parent`. A document
    /// takes groups only.
    void loadListView(QTreeWidgetItem *item, QDomDocument *parent);
    void loadListView(QTreeWidgetItem *item, QDomNode parent);

    /// The seam between the floors: what the upper one keeps of the files.
    struct Tree
    {
        virtual ~Tree() = default;
        /// The answer to lookup(key).
        virtual QString lookup(const KeyPath &path) const = 0;
        /// Adds a file behind those that are there.
        virtual void append(const CfgContent &file, const QString &name) = 0;
    };

protected:
    /// A pointer to the tree, which the files that were read join when it is first used. From then
    /// on lookups walk the tree.
    struct Document
    {
        operator QDomDocument *() const;
        QDomDocument *operator->() const { return *this; }

        Config &owner;
    };

    QString fileName; ///< as given
    QString fileType; ///< the format word as given
    /// The bytes of a "cfg" file, piece by piece; null until it is opened, which reading all of it
    /// does not.
    std::unique_ptr<std::ifstream> stream;
    Document document{*this}; ///< the tree, owned; null until a file is read

private:
    void addFile(CfgContent file);
    void startAnew(QString const &name, QString const &type);
    void loadXml(const QByteArray &content);
    const ConfigTree &grownTree() const;
    ConfigTree &takenTree();
    ConfigTree &newTree();
    bool save(const QString &name, const QString &format, const char *operation) const;

    /// What lookups are answered from, until someone takes the tree.
    std::vector<CfgContent> files;
    // Operations that change nothing may be called by several threads at once, and some of them
    // are the first to want the tree.
    mutable QMutex growing;
    mutable std::unique_ptr<Tree> tree; ///< a ConfigTree
};

/// Writes a file anew, all at once; answers what hindered it, in the system's words, or empty text.
/// One that exists is replaced as a whole where the new one can have its owner, group, mode and
/// links, so that a process that dies leaves no half of it. Otherwise it is written where it
/// stands, after its room is made sure of: one of another owner, with several names or an access
/// list, one in a folder that takes no new file, a device or a pipe.
QString replaceFile(const QString &path, const QByteArray &content);

} // namespace libconfig

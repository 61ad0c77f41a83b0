// SPDX-License-Identifier: MIT
#pragma once

#include <QDomDocument>
#include <QString>

#include <fstream>

namespace libconfig {

/// The configuration store: a file of named groups and their settings, read into a tree and asked
/// by dotted keys such as "zentaro.logger.level".
///
/// Two formats fill the same tree. "cfg" is the block-structured text `group : { key = value; };`
/// in ISO 8859-1; "xml" has an element per group and an attribute per setting. In the tree a group
/// is an element and a setting is an attribute of its group's element; above the top-level groups
/// stands the file element, whose tag name is the file name.
class Config
{
public:
    /// An object without a document: every lookup answers empty text.
    Config() = default;
    /// As `readFile(fileName, fileType)` on an empty object.
    Config(QString const &fileName, QString const &fileType);
    Config(const Config &) = delete;
    Config &operator=(const Config &) = delete;
    ~Config();

    /// Forgets the present tree and reads the file. Any format word but "cfg" and "xml" loads
    /// nothing. A "cfg" file that cannot be read is told on standard output; nothing else is ever
    /// reported, and what cannot be read leaves an empty tree.
    void readFile(QString const &fileName, QString const &fileType);
    /// What readFile does.
    void constructor(QString const &fileName, QString const &fileType);

    /// Opens the byte stream of the "cfg" reader on `fileName`, or on `name`; whatever it was used
    /// for before is forgotten. A file that cannot be read (a folder cannot) is told in one line on
    /// standard output and answers false.
    bool openFile();
    bool openFile(QString const &name);
    void closeFile();

    /// Reads the whole "cfg" file. The stream is closed at the end of the file, and stays open
    /// where a `}` at the top level ended the reading before it.
    void loadFile();
    /// Reads the body of the group `name`, up to and including its `};`, from the open stream. The
    /// group's element joins `parent` with its first member; without members it never does.
    void loadFile(QString const &name, QDomNode parent);
    /// Reads the whole "xml" file; one that is missing or not well-formed leaves an empty tree.
    void loadXmlFile();
    /// Skips the input up to and including `c`; false when the end of the file came first.
    bool jump(char c);

    /// The setting of a dotted key: fields are group names from the first top-level group down,
    /// the last one is the setting's name (or the one before an empty field). Only the first
    /// top-level group is looked at; among groups of the same name the first non-empty value wins.
    /// Answers an empty, non-null text when there is none.
    QString lookup(QString const &key) const;
    /// The same below `node`, whose tag name the first field must be.
    QString lookup(QDomNode node, QString const &key) const;

protected:
    QString fileName;                 ///< as given
    QString fileType;                 ///< the format word as given
    std::ifstream stream;             ///< the bytes of a "cfg" file
    QDomDocument *document = nullptr; ///< the tree, owned; null until a file is read

private:
    bool loadBody(const QDomElement &element, QDomNode &parent);
    QString readValue();
    void newDocument();
    void deleteDocument();
};

} // namespace libconfig

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/companion.h"
#include "tools/preview/document.h"
#include "tools/preview/picture.h"
#include "tools/requests/configurationinuse.h"

class QTextCodec;

/// `zentaro preview`: shows what will be printed, on the terminal or in a picture.
namespace preview {

/// What the options of a call say.
struct Options
{
    int columns = 0;             ///< of the paper; 0: not said
    QTextCodec *codec = nullptr; ///< of print files; null: UTF-8
    bool annotate = false;
    QString configuration; ///< empty: the user's own
    QString other;         ///< the configuration to compare with; empty: none
    QString picture;       ///< empty: the terminal
    PictureFormat format = PictureFormat::Png;
    PaperSize paper;
    std::optional<bool> sideBySide; ///< nothing: as the terminal has room

    /// The name of the first configuration.
    QString configurationName() const;
};

/// Runs the command.
int run(const tools::Call &call);

/// Renders the requests under both configurations and shows those that change.
int compareConfigurations(const tools::Call &call, const Options &options,
                          const QStringList &names);

/// Loads the first configuration; false when it cannot be read, which is told.
bool useConfiguration(const tools::Call &call, const Options &options,
                      tools::ConfigurationInUse &configuration);

/// All rows of a document, up to one more than a picture may have.
std::vector<Row> rowsOf(const Document &document, const Options &options);

/// Draws the sheets into the file that the options name; Fine, or Trouble, which is told.
int writeSheets(const tools::Call &call, const Options &options, const std::vector<Sheet> &sheets,
                size_t perRow);

/// Standard output for what is drawn row by row: hands it over in larger pieces.
class Output
{
public:
    /// False when standard output takes nothing any more, which has been told.
    bool write(const QString &text);
    bool finish();

private:
    QString waiting;
    bool good = true;
};

} // namespace preview

// SPDX-License-Identifier: MIT
#pragma once

#include "app/ztconfiguration.h"
#include "tools/window/configtree.h"
#include "tools/window/sheetpainter.h"

#include <QStandardItemModel>
#include <QTimer>
#include <QTranslator>

#include <optional>

class QComboBox;
class QLabel;
class QListView;

namespace configtool {

/// A document on paper, printed with the settings as they stand in the tree. A line of it can be
/// chosen: by a click, or by the arrow keys and Enter.
class PaperPane : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(PaperPane)

public:
    /// The tree is borrowed.
    explicit PaperPane(ConfigTree &tree);

    /// Draws the document anew, with the rows marked for a moment that have changed.
    void draw();
    /// Shows a sample with the settings of the group, where the present one has others.
    void follow(const QString &group);
    /// Shows a request of the person's own. Answers why it cannot, or an empty text.
    QString openRequest(const QString &path);
    void zoomBy(double factor);
    /// What is shown.
    const preview::Sheet &shown() const { return sheet; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addSamples();
    void chooseDocument();
    void layOut();
    void explain(size_t row);
    std::vector<preview::Row> printed();
    bool shapes(QTreeWidgetItem *item, std::vector<preview::Row> &rows, size_t row);

    ConfigTree &tree;
    ZTConfiguration configuration{{}, {}}; // the tree's, unsaved, which the print run asks
    QTranslator labels;
    QString language; // of the labels
    QByteArray request;
    QStringList groups; // whose settings print the request
    QComboBox *const documents;
    QComboBox *const widths;
    QListView *const view; // in which a row is chosen
    QLabel *const remark;
    preview::Sheet sheet;
    preview::PaperSize paper{128, 80};
    std::optional<preview::SheetPainter> painter; // of the sheet
    QStandardItemModel places{0, 1};              // of its rows
    std::vector<preview::Row> settled;            // what changes are marked against
    QTimer fading;                                // of the marks
};

} // namespace configtool

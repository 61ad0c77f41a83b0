// SPDX-License-Identifier: MIT
#pragma once

#include "app/ztconfiguration.h"
#include "tools/window/configtree.h"
#include "tools/window/sheetpainter.h"

#include <QListView>
#include <QStringListModel>
#include <QTimer>
#include <QTranslator>

#include <memory>
#include <optional>

class QComboBox;
class QLabel;

namespace configtool {

/// A sheet on the screen, of which a row can be chosen: by a click, or by the arrow keys and Enter.
class SheetView : public QListView
{
public:
    SheetView();

    /// Shows other rows, those marked that are `changed`.
    void show(preview::Sheet shown);
    /// Shows the rows without marks.
    void fade();
    void setPaper(const preview::PaperSize &size);

    const preview::Sheet &rows() const { return sheet; }
    preview::PaperSize paperSize() const { return paper; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void layOut();

    preview::Sheet sheet;
    preview::PaperSize paper{128, 80};
    std::optional<preview::SheetPainter> painter; // of the sheet
    QStringListModel places;                      // of the rows; what they show is the sheet's
};

/// A document on paper, printed with the settings as they stand in the tree.
class PaperPane : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(PaperPane)

public:
    /// The tree is borrowed.
    explicit PaperPane(ConfigTree &tree);
    Q_DISABLE_COPY_MOVE(PaperPane)
    ~PaperPane() override;

    /// Draws the document anew, with the rows marked for a moment that have changed.
    void draw();
    /// Shows a sample with the settings of the group, where the present one has others.
    void follow(const QString &group);
    /// Shows a request of the person's own. Answers why it cannot, or an empty text.
    QString openRequest(const QString &path);
    void zoomBy(double factor);

private:
    void addSamples();
    void chooseDocument();
    void explain(size_t row);
    std::vector<preview::Row> printed();
    bool shapes(QTreeWidgetItem *item, const std::vector<preview::Row> &rows, size_t row);

    ConfigTree &tree;
    ZTConfiguration configuration{{}, {}}; // the tree's, unsaved, which the print run asks
    QTranslator labels;
    QString language; // of the labels
    QByteArray request;
    QStringList groups; // whose settings print the request
    QComboBox *const documents;
    QComboBox *const widths;
    SheetView *const view;
    QLabel *const remark;
    std::vector<preview::Row> settled; // what changes are marked against
    QTimer fading;                     // of the marks
};

} // namespace configtool

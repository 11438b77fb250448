// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/kit/pictures.h"

#include <QTextBlock>
#include <QTextBrowser>

#include <vector>

namespace planner {

/// The guide's text with its pictures, from the program's own resources: it loads nothing from elsewhere and
/// follows no link.
class GuidaView : public QTextBrowser {
    Q_OBJECT
public:
    explicit GuidaView(QWidget* parent);

    struct Heading {
        QString text;
        int level = 1; // 1 is the guide's title
        QTextBlock block;
    };
    /// In their order.
    std::vector<Heading> headings() const;
    /// Brings the heading to the top, with the cursor on it.
    void showHeading(const Heading& heading);
    /// Selects the next place of the text, or the one before; false where there is none.
    bool find(const QString& text, bool backward);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void formatTables();
    void fitPictures();
    void fitPicture(const QTextFragment& fragment);
    QPixmap pictureOf(const QString& name, int width) const;

    Pictures m_pictures;
    int m_fitted = 0; // the width that the pictures fit
};

} // namespace planner

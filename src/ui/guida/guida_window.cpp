// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/guida/guida_window.h"

#include "forms/tasti.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/plain_label.h"
#include "ui/kit/screen_scale.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>

namespace planner {

namespace {

constexpr int ChaptersShare = 1;
constexpr int TextShare = 3;
constexpr int Indent = 9; // pixels, of each level of chapters

QPixmap emptyPicture(int width) {
    QPixmap picture(width, 1);
    picture.fill(Qt::transparent);
    return picture;
}

} // namespace

GuidaWindow::GuidaWindow()
    : m_text(new GuidaView(this)), m_chapters(new QListWidget(this)), m_word(new QLineEdit(this)),
      m_outcome(new PlainLabel(this)) {
    setObjectName(QStringLiteral("guida"));
    setWindowTitle(QStringLiteral("Guida al planner"));
    m_chapters->setObjectName(QStringLiteral("capitoli"));
    m_chapters->setAccessibleName(QStringLiteral("Capitoli"));
    m_chapters->setWordWrap(true);
    m_chapters->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_word->setObjectName(QStringLiteral("parola"));
    m_word->setAccessibleName(QStringLiteral("Trova una parola"));
    m_outcome->setObjectName(QStringLiteral("esito"));
    layOut();
    listHeadings();
    addKeys();
}

void GuidaWindow::layOut() {
    auto* search = new QHBoxLayout;
    auto* caption = new PlainLabel(this);
    caption->setText(QStringLiteral("Trova una parola (Ctrl+F, poi F3):"));
    search->addWidget(caption);
    search->addWidget(m_word, 1);
    search->addWidget(m_outcome, 1);
    auto* halves = new QSplitter(this);
    halves->addWidget(m_chapters);
    halves->addWidget(m_text);
    halves->setStretchFactor(0, ChaptersShare);
    halves->setStretchFactor(1, TextShare);
    halves->setChildrenCollapsible(false);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(search);
    whole->addWidget(halves, 1);
}

void GuidaWindow::listHeadings() {
    m_headings = m_text->headings();
    for (const GuidaView::Heading& heading : m_headings) {
        auto* chapter = new QListWidgetItem(heading.text, m_chapters);
        if (heading.level > 1) { // a long one's further lines stand under its first
            chapter->setData(Qt::DecorationRole, emptyPicture(Indent * (heading.level - 1)));
        }
    }
    connect(m_chapters, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            m_text->showHeading(m_headings.at(static_cast<std::size_t>(row)));
        }
    });
    connect(m_chapters, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { // that of the current row too
                m_text->showHeading(m_headings.at(static_cast<std::size_t>(m_chapters->row(item))));
            });
    connect(m_chapters, &QListWidget::itemActivated, this, [this] { m_text->setFocus(); });
}

void GuidaWindow::addKeys() {
    connect(m_word, &QLineEdit::returnPressed, this, [this] { find(/*backward=*/false); });
    connect(m_word, &QLineEdit::textEdited, this, [this] { m_outcome->clear(); });
    const auto onKey = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::CTRL | Qt::Key_F, [this] {
        m_word->setFocus();
        m_word->selectAll();
    });
    onKey(Qt::Key_F3, [this] { find(/*backward=*/false); });
    onKey(Qt::SHIFT | Qt::Key_F3, [this] { find(/*backward=*/true); });
}

void GuidaWindow::find(bool backward) {
    if (m_word->text().isEmpty()) {
        m_word->setFocus();
        return;
    }
    const bool found = m_text->find(m_word->text(), backward);
    m_outcome->setText(found ? QString() : QStringLiteral("Non c'è nella guida."));
    if (found) {
        m_text->setFocus(); // where a screen reader goes on
    }
}

void GuidaWindow::mostra() {
    if (!m_placed) {
        m_placed = true; // later the window stands where the user left it
        const QRect available = screen()->availableGeometry();
        setFont(qtFont(Carattere::normale, fontFactorFor(*screen())));
        resize(available.size() * 4 / 5);
        move(available.center() - rect().center());
    }
    showInFront(*this);
    m_text->setFocus();
}

void GuidaWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_text->document()->setDefaultFont(font());
    }
}

void GuidaWindow::keyPressEvent(QKeyEvent* event) {
    if (virtualKey(*event) == TastoEscape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace planner

// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/prompt_field.h"

#include "ui/kit/controls.h"
#include "ui/kit/plain_label.h"
#include "ui/kit/text.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace planner {

namespace {

constexpr int TypicalLetters = 32;

} // namespace

PromptField::PromptField(QWidget* parent) : QFrame(parent), m_caption(new PlainLabel(this)) {
    setObjectName(QStringLiteral("campo"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(m_caption);
    hide();
}

void PromptField::open(const DescrizioneCampo& campo, const QString& text,
                       std::function<bool(const QString&)> confirm) {
    m_confirm = std::move(confirm);
    // To a screen reader what it has heard of before is the same field, whatever it is called since.
    QLineEdit* before = std::exchange(m_edit, makeEdit(campo));
    m_edit->setText(text);
    m_edit->selectAll();
    if (before != nullptr) {
        before->removeEventFilter(this);
    }
    show();
    raise();
    m_edit->setFocus();
    if (before != nullptr) {
        before->setObjectName(QString());
        before->hide();
        before->deleteLater(); // its key may be under way
    }
}

QLineEdit* PromptField::makeEdit(const DescrizioneCampo& campo) {
    const QString caption = fromUtf8(campo.didascalia);
    m_caption->setText(caption + QLatin1Char(':'));
    auto* edit = new QLineEdit(this);
    edit->setObjectName(fromUtf8(campo.nome));
    edit->setAccessibleName(caption);
    edit->setAccessibleDescription(fromUtf8(campo.esempio));
    edit->setPlaceholderText(fromUtf8(campo.esempio));
    edit->setMinimumWidth(TypicalLetters * edit->fontMetrics().averageCharWidth());
    edit->installEventFilter(this);
    layout()->addWidget(edit);
    edit->show();
    return edit;
}

bool PromptField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_F3 || key.key() == Qt::Key_Escape) {
            event->accept(); // the field's own, not the window's
            return true;
        }
    } else if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            hide(); // whoever has the focus keeps it
        }
    }
    return QFrame::eventFilter(watched, event);
}

void PromptField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        leave();
    } else if (isEnter(*event) || event->key() == Qt::Key_F3) {
        confirm();
    }
    event->accept();
}

void PromptField::confirm() {
    if (m_confirm(m_edit->text())) {
        leave();
    } else {
        m_edit->selectAll();
    }
}

void PromptField::leave() {
    Q_EMIT left();
    hide();
}

} // namespace planner

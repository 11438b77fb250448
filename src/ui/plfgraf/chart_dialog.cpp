// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_dialog.h"

#include "forms/plfgraf/chart_texts.h"
#include "forms/plfgraf/plfgraf.h"
#include "ports/message_boxes.h"
#include "ui/kit/annuncio.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/plfgraf/chart_kind_frame.h"
#include "ui/plfgraf/chart_view.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

namespace planner {

namespace {

constexpr double ScreenShare = 0.9; // of the screen, in each direction, that the window takes at first
constexpr int StripMargin = 3;      // above and below what stands in the strip below the chart, pixels
constexpr int StripGap = 6;
constexpr int ButtonPadding = 12;                       // beyond the style's own
constexpr int MargineGrafico = 500 / TwipsPerPixel + 1; // of the chart in the window, both sides
constexpr int NarrowestStatus = 120;

const QString Suggerimento = QStringLiteral("Frecce o mouse: leggere i valori.");

QRect pixelRect(const Rettangolo& twips) {
    return qtRect({twips.Left / TwipsPerPixel, twips.Top / TwipsPerPixel, twips.Width / TwipsPerPixel,
                   twips.Height / TwipsPerPixel});
}

/// The font of what stands outside the chart: the strip below it has one height on every screen.
QFont stripFont(double factor) {
    constexpr double highestLetters = 22; // pixels, that a button of the strip can hold
    QFont font = qtFont(Carattere::normale, factor);
    const double height = QFontMetricsF(font).height();
    if (height > highestLetters) {
        font.setPointSizeF(font.pointSizeF() * highestLetters / height);
    }
    return font;
}

int widthOf(const QPushButton& button) {
    return button.sizeHint().width() + ButtonPadding;
}

} // namespace

ChartDialog::ChartDialog(plfgraf& form, MessageBoxes& messaggi, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint), m_form(form),
      m_messaggi(messaggi), m_fontFactor(fontFactorFor(*screen())),
      m_chart(new ChartView(*form.visibile(), m_fontFactor, this)), m_frame(makeFrame()),
      m_piede(new FittedLabel(this)), m_stato(new FittedLabel(this)), m_annuncio(new Annuncio(this)) {
    setObjectName(QStringLiteral("plfgraf"));
    setWindowTitle(QStringLiteral("Planner"));
    setFont(stripFont(m_fontFactor));
    m_chart->setObjectName(fromUtf8(grafico().nome));
    m_chart->setAccessibleName(QStringLiteral("Grafico"));
    m_piede->setObjectName(QStringLiteral("piede"));
    m_piede->setText(fromUtf8(testoPiede(grafico())));
    m_stato->setObjectName(QStringLiteral("stato"));
    connect(m_chart, &ChartView::valuePointed, this, &ChartDialog::showValue);
    showValue({});
    addCommands();
    setMinimumSize(smallestSize());
    resize(screen()->availableSize() * ScreenShare);
    m_chart->setFocus();
}

const Grafico& ChartDialog::grafico() const {
    return *m_form.visibile();
}

/// The window's inner size at which chart and strip are still whole.
QSize ChartDialog::smallestSize() const {
    int strip = NarrowestStatus;
    for (const QPushButton* button : m_buttons) {
        strip += StripGap + widthOf(*button);
    }
    const QSize frame = m_frame->sizeHint();
    return {std::max(frame.width() * 2, strip + MargineGrafico), frame.height() * 5};
}

ChartKindFrame* ChartDialog::makeFrame() {
    auto* frame = new ChartKindFrame(QStringLiteral("Tipo Grafico"), this);
    frame->setObjectName(QStringLiteral("FrameTipo_Grafico"));
    frame->setFont(qtFont({"MS Sans Serif", carattere(Carattere::normale).punti, false}, m_fontFactor));
    auto* layout = new QHBoxLayout(frame);
    for (int index = 0; index < static_cast<int>(OpzioniTipoGrafico.size()); ++index) {
        const std::string_view caption = OpzioniTipoGrafico.at(static_cast<std::size_t>(index));
        addOption(*layout,
                  {QStringLiteral("OptTipoGrafico_"), index, caption, index == m_form.OptTipoGrafico()},
                  [this](int chosen) {
                      m_form.OptTipoGrafico_Click(chosen);
                      m_chart->refresh();
                  });
    }
    return frame;
}

void ChartDialog::keyPressEvent(QKeyEvent* event) {
    if (plfgraf::Form_KeyDown(virtualKey(*event))) {
        close();
    } else if (!clickFocusedButton(*this, *event)) {
        // A dialog would look for a default button. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QWidget::keyPressEvent(event);
    }
}

void ChartDialog::resizeEvent(QResizeEvent*) {
    const QSize frame = m_frame->sizeHint() * TwipsPerPixel;
    m_form.setDimensioniFrame({frame.width(), frame.height()});
    m_form.Form_Resize({width() * TwipsPerPixel, height() * TwipsPerPixel});
    placeControls();
}

void ChartDialog::placeControls() {
    m_chart->setGeometry(pixelRect(m_form.posizioneGrafici()));
    m_frame->setGeometry(pixelRect(m_form.posizioneFrameTipo_Grafico()));
    m_frame->raise();
    m_chart->setReserved(m_frame->geometry().translated(-m_chart->pos()));
    const int top = m_chart->geometry().bottom() + 1;
    placeStrip({m_chart->x(), top, m_chart->width(), height() - top});
}

/// The buttons stand at the right end of the strip below the chart; the line gets what they leave.
void ChartDialog::placeStrip(const QRect& strip) {
    int right = strip.right() + 1;
    for (auto button = m_buttons.rbegin(); button != m_buttons.rend(); ++button) {
        const int width = widthOf(**button);
        const int height = std::min((*button)->sizeHint().height(), strip.height() - 2 * StripMargin);
        right -= width;
        (*button)->setGeometry(right, strip.center().y() - height / 2, width, height);
        right -= StripGap;
    }
    m_texts = {strip.x(), strip.y(), std::max(right - strip.x(), 0), strip.height()};
    placeTexts();
}

/// The foot stands at the left. What there is to say stands beside it, and comes first where both do not fit;
/// an invitation is left out there.
void ChartDialog::placeTexts() {
    constexpr int gap = 12;
    constexpr int narrowestFoot = 100;
    const auto wanted = [](const QLabel& label) {
        return label.fontMetrics().horizontalAdvance(label.text()) + 1;
    };
    const int left = m_texts.width() - gap - (m_resting ? 0 : wanted(*m_stato));
    const int foot = std::min(wanted(*m_piede), left);
    const bool footStands = foot >= std::min(narrowestFoot, wanted(*m_piede));
    m_piede->setGeometry(m_texts.x(), m_texts.y(), footStands ? foot : 0, m_texts.height());
    m_stato->setGeometry(m_texts.adjusted(footStands ? foot + gap : 0, 0, 0, 0));
    m_stato->setVisible(!m_resting || m_stato->width() >= wanted(*m_stato));
}

void ChartDialog::say(const QString& text, const QString& spoken) {
    const QString trouble = fromUtf8(grafico().avviso);
    m_stato->setText(trouble + text);
    m_stato->setAccessibleName(spoken);
    m_resting = trouble.isEmpty() && text == Suggerimento;
    placeTexts();
}

void ChartDialog::announce(const QString& text) {
    say(text);
    m_annuncio->di(text);
}

void ChartDialog::showValue(const QModelIndex& index) {
    if (index.isValid()) {
        say(index.data(Qt::StatusTipRole).toString(), index.data(Qt::AccessibleTextRole).toString());
    } else {
        say(Suggerimento);
    }
}

void mostraGrafico(plfgraf& form, MessageBoxes& messaggi) {
    ChartDialog(form, messaggi, QApplication::activeWindow()).exec();
}

} // namespace planner

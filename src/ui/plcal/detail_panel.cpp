// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/detail_panel.h"

#include "forms/plcal/panel.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitted_label.h"

#include <QFrame>

#include <algorithm>

namespace planner {

namespace {

constexpr QRgb BoxEdgeColor = qRgb(136, 136, 136);

/// A field that stands out from the window in light and in dark.
QFrame* makeBox(QWidget* parent) {
    auto* box = new QFrame(parent);
    box->setFrameStyle(QFrame::Box | QFrame::Plain);
    box->setAutoFillBackground(true);
    box->setBackgroundRole(QPalette::Base);
    box->setForegroundRole(QPalette::WindowText);
    QPalette palette = box->palette();
    palette.setColor(QPalette::WindowText, QColor(BoxEdgeColor));
    box->setPalette(palette);
    return box;
}

/// The toolkit announces a name that is set, whether it is another one or not.
void setIfOther(QLabel& label, const QString& text, const QString& name) {
    if (label.accessibleName() != name) {
        label.setText(text);
        label.setAccessibleName(name);
    }
}

} // namespace

DetailPanel::DetailPanel(QWidget* parent) : QObject(parent) {
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        auto* caption = new FittedLabel(parent);
        caption->setText(fromUtf8(etichetta.didascalia));
        QFrame* box = makeBox(parent);
        auto* number = new FittedLabel(box);
        number->setForegroundRole(QPalette::Text);
        number->setObjectName(fromUtf8(etichetta.nome));
        number->setAlignment(Qt::AlignCenter);
        m_coppie.push_back({caption, box, number});
    }
}

void DetailPanel::arrange(std::optional<TipoPlanner> tipo, bool varianteRidotta, const Scala& scala) {
    for (std::size_t i = 0; i < m_coppie.size(); ++i) {
        const EtichettaTotale& etichetta = EtichetteTotali.at(i);
        const Coppia& coppia = m_coppie[i];
        const bool visible = totaleVisibile(etichetta, tipo, varianteRidotta);
        coppia.didascalia->setVisible(visible);
        coppia.riquadro->setVisible(visible);
        const Rettangolo caption = posizioneDidascalia(etichetta, varianteRidotta);
        const Rettangolo number = posizioneNumero(etichetta, varianteRidotta);
        coppia.didascalia->setGeometry(qtRect(pixels(caption, scala)));
        coppia.riquadro->setGeometry(qtRect(pixels(number, scala)));
        coppia.numero->setGeometry(coppia.riquadro->rect());
    }
    giveOneSize();
}

/// The captions have the letters of the one that has the least room.
void DetailPanel::giveOneSize() {
    const QLabel& first = *m_coppie.front().didascalia;
    const FittingFont letters(fontWithin(first.font(), first.height())); // each caption has this height
    double smallest = letters.font().pointSizeF();
    for (const Coppia& coppia : m_coppie) {
        if (!coppia.didascalia->isHidden()) {
            const FittedText fitted = letters.fit(coppia.didascalia->text(), coppia.didascalia->width());
            smallest = std::min(smallest, fitted.font().pointSizeF());
        }
    }
    for (const Coppia& coppia : m_coppie) {
        coppia.didascalia->setLargestLetters(smallest);
    }
}

void DetailPanel::show(const PannelloDettagli& contents) {
    for (std::size_t i = 0; i < m_coppie.size(); ++i) {
        const StatoEtichetta& state = contents.totali.at(i);
        const QString number = fromUtf8(state.testo);
        QLabel* label = m_coppie[i].numero;
        label->setVisible(state.visibile);
        setIfOther(*label, number,
                   fromUtf8(EtichetteTotali.at(i).didascalia) + QStringLiteral(": ") +
                       (number.isEmpty() ? QStringLiteral("0") : number));
    }
}

} // namespace planner

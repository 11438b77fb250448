// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/detail_panel.h"

#include "platform/qt/plain_label.h"
#include "platform/qt/text.h"

#include <QFrame>

namespace planner {

namespace {

void place(QWidget& label, const Rettangolo& twips, const Scala& scala) {
    label.setGeometry(pixels(twips.Left, scala.ScalaX), pixels(twips.Top, scala.ScalaY),
                      pixels(twips.Width, scala.ScalaX), pixels(twips.Height, scala.ScalaY));
}

} // namespace

DetailPanel::DetailPanel(QWidget* parent) : QObject(parent) {
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        auto* caption = new PlainLabel(parent);
        caption->setText(fromUtf8(etichetta.didascalia));
        auto* box = new QFrame(parent);
        box->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        auto* number = new PlainLabel(box);
        number->setObjectName(fromUtf8(etichetta.nome));
        number->setAlignment(Qt::AlignCenter);
        m_coppie.push_back({&etichetta, caption, box, number});
    }
}

void DetailPanel::arrange(std::optional<TipoPlanner> tipo, bool varianteRidotta, const Scala& scala) {
    for (const Coppia& coppia : m_coppie) {
        const bool visible = totaleVisibile(*coppia.etichetta, tipo, varianteRidotta);
        coppia.didascalia->setVisible(visible);
        coppia.riquadro->setVisible(visible);
        place(*coppia.didascalia, posizioneDidascalia(*coppia.etichetta, varianteRidotta), scala);
        place(*coppia.riquadro, posizioneNumero(*coppia.etichetta, varianteRidotta), scala);
        coppia.numero->setGeometry(coppia.riquadro->rect());
    }
}

void DetailPanel::show(const PannelloDettagli& contents) {
    for (const Coppia& coppia : m_coppie) {
        const StatoEtichetta& state = contents[coppia.etichetta->nome];
        const QString number = fromUtf8(state.testo);
        coppia.numero->setVisible(state.visibile);
        coppia.numero->setText(number);
        coppia.numero->setAccessibleName(fromUtf8(coppia.etichetta->didascalia) + QStringLiteral(": ") +
                                         (number.isEmpty() ? QStringLiteral("0") : number));
    }
}

} // namespace planner

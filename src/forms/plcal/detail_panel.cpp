// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/detail_panel.h"

#include "platform/qt/plain_label.h"
#include "platform/qt/text.h"

#include <QFrame>

namespace planner {

namespace {

void place(QLabel& label, const Rettangolo& twips, const Scala& scala) {
    label.setGeometry(pixels(twips.Left, scala.ScalaX), pixels(twips.Top, scala.ScalaY),
                      pixels(twips.Width, scala.ScalaX), pixels(twips.Height, scala.ScalaY));
}

} // namespace

DetailPanel::DetailPanel(QWidget* parent) : QObject(parent) {
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        auto* caption = new PlainLabel(parent);
        caption->setText(fromUtf8(etichetta.didascalia));
        auto* number = new PlainLabel(parent);
        number->setObjectName(fromUtf8(etichetta.nome));
        number->setAlignment(Qt::AlignCenter);
        number->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        m_coppie.push_back({&etichetta, caption, number});
    }
}

void DetailPanel::arrange(std::optional<TipoPlanner> tipo, bool varianteRidotta, const Scala& scala) {
    for (const Coppia& coppia : m_coppie) {
        const bool visible = totaleVisibile(*coppia.etichetta, tipo, varianteRidotta);
        coppia.didascalia->setVisible(visible);
        coppia.numero->setVisible(visible);
        place(*coppia.didascalia, posizioneDidascalia(*coppia.etichetta, varianteRidotta), scala);
        place(*coppia.numero, posizioneNumero(*coppia.etichetta, varianteRidotta), scala);
    }
}

} // namespace planner

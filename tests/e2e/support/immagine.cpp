// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/immagine.h"

#include <sstream>
#include <stdexcept>

namespace planner::e2e {

Immagine::Immagine(std::string ppm) : m_ppm(std::move(ppm)) {
    std::istringstream header(m_ppm.substr(0, 64));
    std::string magic;
    int brightest = 0;
    header >> magic >> m_width >> m_height >> brightest;
    if (!header || magic != "P6" || brightest != 255) {
        throw std::runtime_error("not a picture");
    }
    m_pixels = static_cast<std::size_t>(header.tellg()) + 1;
}

Immagine::Colour Immagine::at(int x, int y) const {
    const auto index =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    Colour colour{};
    for (std::size_t channel = 0; channel < colour.size(); ++channel) {
        colour.at(channel) = static_cast<unsigned char>(m_ppm.at(m_pixels + index * colour.size() + channel));
    }
    return colour;
}

std::set<Immagine::Colour> Immagine::colours(const Area& area) const {
    std::set<Colour> found;
    for (int y = area.y; y < area.y + area.height; ++y) {
        for (int x = area.x; x < area.x + area.width; ++x) {
            found.insert(at(x, y));
        }
    }
    return found;
}

Immagine Immagine::part(const Area& area) const {
    std::string ppm = "P6\n" + std::to_string(area.width) + " " + std::to_string(area.height) + "\n255\n";
    for (int y = area.y; y < area.y + area.height; ++y) {
        for (int x = area.x; x < area.x + area.width; ++x) {
            const Colour colour = at(x, y);
            ppm.append(colour.begin(), colour.end());
        }
    }
    return Immagine(std::move(ppm));
}

} // namespace planner::e2e

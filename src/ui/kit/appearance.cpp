// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/appearance.h"

#include "ui/kit/drawn_icon.h"
#include "ui/kit/key_names.h"
#include "ui/kit/planner_style.h"
#include "ui/kit/screen_scale.h"
#include "ui/kit/text.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

/// A static library's resources are linked in only when somebody asks for them; the toolkit's macro must
/// stand outside any namespace.
static void initResources() {
    Q_INIT_RESOURCE(resources);
}

namespace planner {

namespace {

constexpr double SmallestLegible = 7; // points
constexpr const char* DesktopPoints = "desktopPoints";
constexpr int SlowTyping = 1000; // milliseconds between two letters of one name

/// What stands for the design-time fonts where they are not installed.
QFont fontNamed(std::string_view family) {
    QFont font;
    font.setFamilies({fromUtf8(family), QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    return font;
}

} // namespace

void setUpAppearance(QApplication& application) {
    initResources();
    application.setProperty(DesktopPoints, QApplication::font().pointSizeF());
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(translator);
    }
    QCoreApplication::installTranslator(new KeyNames(&application));
    QApplication::setStyle(new PlannerStyle); // the application owns it
    // The style's own pictures everywhere: to search a desktop's themes takes a tenth of the start. An empty
    // list would mean the system's folders.
    const QStringList own{QStringLiteral(":/planner")};
    QIcon::setThemeSearchPaths(own);
    QIcon::setFallbackSearchPaths(own);
    fitFontsTo(*QGuiApplication::primaryScreen()); // before windows take another font over
    QApplication::setWindowIcon(qtIcon("planner"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setKeyboardInputInterval(SlowTyping);
}

double desktopFontFactor() {
    constexpr double usual = 10; // points; desktops come with 9 to 11
    constexpr double tolerated = 11;
    constexpr double largest = 1.5;
    const double points = qApp->property(DesktopPoints).toDouble();
    return points <= tolerated ? 1 : std::min(points / usual, largest);
}

QColor qtColor(Colore colore) {
    const Rgb value = rgb(colore);
    return {value.red, value.green, value.blue};
}

QFont qtFont(Carattere which, double factor) {
    return qtFont(carattere(which), factor);
}

QFont qtFont(const DescrizioneCarattere& described, double factor) {
    QFont font = fontNamed(described.famiglia);
    font.setPointSizeF(std::max(described.punti * factor, SmallestLegible));
    font.setBold(described.grassetto);
    return font;
}

} // namespace planner

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/dress.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "ui/look/card.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr double UsualPixels = 13;
constexpr auto Dressed = "dressed";
constexpr auto LettersWorn = "letters";
constexpr auto BoldWorn = "boldLetters";
constexpr auto ToneWorn = "tone";
constexpr auto SheetWorn = "sheet";

std::optional<Scheme> wanted;
QSize usualWindow(1320, 860);
QSize lastWindow = usualWindow;

void ChangeLetters(QWidget& widget) {
    widget.setFont(LookFont(widget.property(LettersWorn).toDouble(), widget.property(BoldWorn).toBool()));
}

void ChangeTone(QLabel& label) {
    SetLabelColour(&label, Shade(static_cast<Tone>(label.property(ToneWorn).toInt())));
}

void ChangeSheet(QWidget& widget) {
    widget.setStyleSheet(Styled(widget.property(SheetWorn).toString()));
}

void Change(QWidget& widget) {
    if (widget.property(LettersWorn).isValid()) {
        ChangeLetters(widget);
    }
    if (auto* label = qobject_cast<QLabel*>(&widget); label != nullptr && label->property(ToneWorn).isValid()) {
        ChangeTone(*label);
    }
    if (widget.property(SheetWorn).isValid()) {
        ChangeSheet(widget);
    }
}

// A new style sheet gives back the palettes of before, so it comes first; and it does so when a widget is polished,
// which is not left until the window is shown.
void ChangeWindow(QWidget& window) {
    window.setStyleSheet(LookSheet());
    window.ensurePolished();
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        widget->ensurePolished();
    }
    window.setPalette(LookPalette());
    window.setFont(LookFont(UsualPixels));
    const auto widgets = window.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        Change(*widget);
    }
    for (QWidget* widget : widgets) {
        QEvent event(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &event);
    }
    window.update();
}

/// Letters of 11 points and less are usual; a window that is much larger than usual has larger ones, and none has
/// larger ones than it can hold.
double LettersFor(const QFont& font, const QSize& window) {
    constexpr double usualPoints = 11;
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 0.75;
    const double desktop = std::max(1.0, points / usualPoints);
    const double large = std::min(static_cast<double>(window.width()) / usualWindow.width(),
                                  static_cast<double>(window.height()) / usualWindow.height());
    const double most = std::max(1.0, std::min(window.width() / 640.0, window.height() / 430.0));
    return std::min({desktop * std::clamp(large, 1.0, 1.5), most, 2.2});
}

/// Has the windows follow the desktop. What the application wears is ours, so the desktop's own is kept here.
class DesktopWatch : public QObject {
public:
    explicit DesktopWatch(QObject* parent)
        : QObject(parent), palette_(QGuiApplication::palette()), font_(QApplication::font()) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (changing_) {
            return false;
        }
        if (event->type() == QEvent::ThemeChange) {
            AskTheDesktop();
            Follow();
        } else if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp) {
            palette_ = QGuiApplication::palette();
            Follow();
        } else if (event->type() == QEvent::ApplicationFontChange && watched == qApp) {
            font_ = QApplication::font();
            Follow();
        }
        return false;
    }

    /// Dresses everything anew.
    void Follow() {
        changing_ = true;
        SetScheme(wanted.value_or(SchemeOf(palette_)));
        SetLetters(LettersFor(font_, lastWindow));
        QApplication::setPalette(LookPalette());
        QToolTip::setPalette(LookPalette());
        QFont font = LookFont(UsualPixels);
        font.setFamily(font_.family());
        QApplication::setFont(font);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->property(Dressed).toBool()) {
                ChangeWindow(*window);
            }
        }
        changing_ = false;
    }

    const QFont& DesktopFont() const { return font_; }

private:
    // Without a palette of its own the application has the desktop's.
    void AskTheDesktop() {
        changing_ = true;
        QApplication::setPalette(QPalette());
        palette_ = QGuiApplication::palette();
        font_ = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        changing_ = false;
    }

    QPalette palette_;
    QFont font_;
    bool changing_ = false;
};

DesktopWatch& Desktop() {
    static QPointer<DesktopWatch> watch;
    if (watch == nullptr) {
        watch = new DesktopWatch(qApp);
        qApp->installEventFilter(watch);
        watch->Follow();
    }
    return *watch;
}

}  // namespace

void Dress(QWidget& window) {
    Desktop();
    window.setProperty(Dressed, true);
    ChangeWindow(window);
}

void WearLetters(QWidget& widget, double pixels, bool bold) {
    widget.setProperty(LettersWorn, pixels);
    widget.setProperty(BoldWorn, bold);
    ChangeLetters(widget);
}

void WearTone(QLabel& label, Tone tone) {
    label.setProperty(ToneWorn, static_cast<int>(tone));
    ChangeTone(label);
}

void WearSheet(QWidget& widget, const QString& sheet) {
    widget.setProperty(SheetWorn, sheet);
    ChangeSheet(widget);
}

void WantScheme(std::optional<Scheme> scheme) {
    wanted = scheme;
    Desktop().Follow();
}

std::optional<Scheme> WantedScheme() {
    return wanted;
}

std::optional<Scheme> SchemeNamed(const QString& name) {
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark, Scheme::Contrast}) {
        if (SchemeName(scheme) == name) {
            return scheme;
        }
    }
    return std::nullopt;
}

QString SchemeName(std::optional<Scheme> scheme) {
    if (!scheme) {
        return QStringLiteral("desktop");
    }
    switch (*scheme) {
        case Scheme::Light: return QStringLiteral("light");
        case Scheme::Dark: return QStringLiteral("dark");
        case Scheme::Contrast: return QStringLiteral("contrast");
    }
    return {};
}

double UsualWidth(const QWidget& widget) {
    return widget.width() / Letters();
}

double UsualHeight(const QWidget& widget) {
    return widget.height() / Letters();
}

QRect InPixels(const QRectF& usual) {
    return QRectF(usual.topLeft() * Letters(), usual.size() * Letters()).toRect();
}

void PaintUsual(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Letters(), Letters());
}

void FitLetters(const QSize& window) {
    constexpr double noticed = 0.04;
    lastWindow = window;
    const double fitting = LettersFor(Desktop().DesktopFont(), window);
    if (std::abs(fitting - Letters()) >= noticed || (fitting == 1 && Letters() != 1)) {
        Desktop().Follow();
    }
}

}  // namespace plasmos

// SPDX-License-Identifier: GPL-3.0-or-later
//
// Colours: what is read and what is told apart in every scheme.

#include <QImage>
#include <QPainter>
#include <array>
#include <cmath>

#include "tests/ui/support/scene.h"
#include "ui/look/dress.h"

namespace plasmos::testing {

namespace {

struct PairRow {
    const char* Name;
    Tone Letters;
    Tone Ground;
};

constexpr PairRow Texts[] = {
    {"text on the window", Tone::Ink, Tone::Window},
    {"text on a card", Tone::Ink, Tone::Card},
    {"text in a field", Tone::Ink, Tone::Field},
    {"text in a tool tip", Tone::Ink, Tone::Tip},
    {"text on what is under the pointer", Tone::Ink, Tone::Highlight},
    {"quiet text on the window", Tone::Faint, Tone::Window},
    {"quiet text on a card", Tone::Faint, Tone::Card},
    {"a placeholder", Tone::Placeholder, Tone::Field},
    {"a heading", Tone::Accent, Tone::Field},
    {"a button", Tone::Accent, Tone::Card},
    {"a button under the pointer", Tone::Accent, Tone::Highlight},
    {"a main button", Tone::OnAccent, Tone::Accent},
    {"an alarm", Tone::Alarm, Tone::Card},
    {"what is recommended", Tone::Guide, Tone::Card},
    {"a gene's chip", Tone::ChipInk, Tone::Chip},
    {"a space of the track", Tone::TrackInk, Tone::Track},
    {"another space of the track", Tone::TrackInk, Tone::TrackOdd},
    {"the goal", Tone::GoalInk, Tone::Goal},
    {"a square's number in the light", Tone::SquareInk, Tone::WaterLight},
};

constexpr PairRow Shapes[] = {
    {"what has the focus, on a card", Tone::Focus, Tone::Card},
    {"what has the focus, on the window", Tone::Focus, Tone::Window},
    {"the edge of a field", Tone::FieldEdge, Tone::Field},
    {"the edge of a stone in the light", Tone::StoneEdge, Tone::WaterLight},
    {"the edge of a stone in the deep", Tone::StoneEdge, Tone::WaterDeep},
    {"the acting piece in the light", Tone::PieceEdge, Tone::PieceHalo},
    {"an offered square in the light", Tone::OfferLine, Tone::WaterLight},
    {"an offered square in the deep", Tone::OfferLine, Tone::WaterDeep},
    {"what is pointed at, on a card", Tone::Guide, Tone::Card},
    {"what is pointed at, in the light", Tone::Guide, Tone::WaterLight},
    {"what is pointed at, in the deep", Tone::Guide, Tone::WaterDeep},
    {"a turn that is played", Tone::Accent, Tone::Card},
};

constexpr Tone Waters[] = {Tone::WaterLight, Tone::WaterMiddle, Tone::WaterDeep};

/// How people see a colour who lack one kind of cone: linear light through the matrices of a published simulation.
struct EyeRow {
    const char* Name;
    std::array<double, 9> Matrix;
};

constexpr EyeRow Eyes[] = {
    {"all colours", {1, 0, 0, 0, 1, 0, 0, 0, 1}},
    {"no red", {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998}},
    {"no green", {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881}},
    {"no blue", {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900}},
};

double Linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

std::array<double, 3> Seen(const EyeRow& eye, const QColor& colour) {
    const std::array<double, 3> light = {Linear(colour.redF()), Linear(colour.greenF()), Linear(colour.blueF())};
    std::array<double, 3> seen{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t part = 0; part < 3; ++part) {
            seen[row] += eye.Matrix[3 * row + part] * light[part];
        }
    }
    return seen;
}

QImage Badge(int clan) {
    QImage picture(24, 24, QImage::Format_RGB32);
    picture.fill(Shade(Tone::Card));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawClanBadge(painter, clan, QPointF(12, 12), 10);
    return picture;
}

/// Share of the pixels of two badges that somebody sees as clearly different.
double Difference(const EyeRow& eye, const QImage& one, const QImage& other) {
    constexpr double clear = 0.08;
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const auto first = Seen(eye, one.pixelColor(x, y));
            const auto second = Seen(eye, other.pixelColor(x, y));
            double far = 0;
            for (std::size_t part = 0; part < 3; ++part) {
                far = std::max(far, std::abs(first[part] - second[part]));
            }
            different += far >= clear ? 1 : 0;
        }
    }
    return static_cast<double>(different) / (one.width() * one.height());
}

}  // namespace

class ThemeTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void textsAreRead_data();
    void textsAreRead();
    void shapesAreSeen_data();
    void shapesAreSeen();
    void clansStandOutFromTheWater_data() { schemes(); }
    void clansStandOutFromTheWater();
    void clansAreToldApart_data() { schemes(); }
    void clansAreToldApart();

private:
    static void schemes();
    static void pairs(const PairRow* first, const PairRow* last);
};

void ThemeTest::cleanup() {
    WantScheme(std::nullopt);
}

void ThemeTest::schemes() {
    QTest::addColumn<int>("scheme");
    QTest::newRow("light") << static_cast<int>(Scheme::Light);
    QTest::newRow("dark") << static_cast<int>(Scheme::Dark);
    QTest::newRow("contrast") << static_cast<int>(Scheme::Contrast);
}

void ThemeTest::pairs(const PairRow* first, const PairRow* last) {
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("letters");
    QTest::addColumn<int>("ground");
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark, Scheme::Contrast}) {
        for (const PairRow* row = first; row != last; ++row) {
            QTest::addRow("%s: %s", qPrintable(SchemeName(scheme)), row->Name)
                << static_cast<int>(scheme) << static_cast<int>(row->Letters) << static_cast<int>(row->Ground);
        }
    }
}

#define HAS_CONTRAST(least)                                                                              \
    QFETCH(int, scheme);                                                                                 \
    QFETCH(int, letters);                                                                                \
    QFETCH(int, ground);                                                                                 \
    const double contrast = ContrastOf(ShadeIn(static_cast<Scheme>(scheme), static_cast<Tone>(letters)), \
                                       ShadeIn(static_cast<Scheme>(scheme), static_cast<Tone>(ground))); \
    QVERIFY2(contrast >= (least), qPrintable(QString::number(contrast)))

void ThemeTest::textsAreRead_data() {
    pairs(std::begin(Texts), std::end(Texts));
}

void ThemeTest::textsAreRead() {
    HAS_CONTRAST(4.5);
}

void ThemeTest::shapesAreSeen_data() {
    pairs(std::begin(Shapes), std::end(Shapes));
}

void ThemeTest::shapesAreSeen() {
    HAS_CONTRAST(3.0);
}

// The outline of a piece, a cube or a sign, or else its body.
void ThemeTest::clansStandOutFromTheWater() {
    QFETCH(int, scheme);
    const auto in = static_cast<Scheme>(scheme);
    for (int clan = 1; clan <= MaxClans; ++clan) {
        for (const Tone water : Waters) {
            const double contrast = ContrastOf(ShadesIn(in, clan).Edge, ShadeIn(in, water));
            QVERIFY2(contrast >= 3, qPrintable(QStringLiteral("clan %1: %2").arg(clan).arg(contrast)));
        }
        QVERIFY(ContrastOf(ShadesIn(in, clan).Edge, ShadeIn(in, Tone::Field)) >= 4.5);
        QVERIFY(ContrastOf(ShadesIn(in, clan).Ink, ShadesIn(in, clan).Body) >= 3);
    }
}

void ThemeTest::clansAreToldApart() {
    QFETCH(int, scheme);
    WantScheme(static_cast<Scheme>(scheme));
    constexpr double enough = 0.09;
    for (const EyeRow& eye : Eyes) {
        for (int clan = 1; clan <= MaxClans; ++clan) {
            for (int other = clan + 1; other <= MaxClans; ++other) {
                const double share = Difference(eye, Badge(clan), Badge(other));
                QVERIFY2(share >= enough, qPrintable(QStringLiteral("%1: clans %2 and %3 differ in %4 of the sign")
                                                         .arg(QLatin1String(eye.Name))
                                                         .arg(clan)
                                                         .arg(other)
                                                         .arg(share)));
            }
        }
    }
}

WINDOW_TESTS(theme_test, ThemeTest)

}  // namespace plasmos::testing

#include "theme_test.moc"

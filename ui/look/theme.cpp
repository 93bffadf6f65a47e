// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/theme.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include "model/game_state.h"

namespace plasmos {

namespace {

struct ToneRow {
    Tone What;
    std::array<QRgb, SchemeCount> In;  ///< by scheme
    const char* Name;
};

// ---------- light, dark, high contrast ----------
constexpr ToneRow Tones[] = {
    {Tone::Window, {0xFFF4F2EC, 0xFF1B2124, 0xFF000000}, "Window"},
    {Tone::Card, {0xFFFFFFFF, 0xFF252C30, 0xFF000000}, "Card"},
    {Tone::CardEdge, {0xFFDDD8CB, 0xFF46525A, 0xFFFFFFFF}, "CardEdge"},
    {Tone::Ink, {0xFF22272B, 0xFFECEFF0, 0xFFFFFFFF}, "Ink"},
    {Tone::Faint, {0xFF67634F, 0xFFABB4B8, 0xFFFFFFFF}, "Faint"},
    {Tone::Disabled, {0xFFA5A195, 0xFF7C868B, 0xFFB4B4B4}, "Disabled"},
    {Tone::Placeholder, {0xFF6F6A5E, 0xFF9AA4A9, 0xFFD0D0D0}, "Placeholder"},
    {Tone::Accent, {0xFF2C6E78, 0xFF7CCBD3, 0xFF7FE9FF}, "Accent"},
    {Tone::OnAccent, {0xFFFFFFFF, 0xFF0E1517, 0xFF000000}, "OnAccent"},
    {Tone::AccentHover, {0xFF37848F, 0xFF9BDBE1, 0xFFB8F3FF}, "AccentHover"},
    {Tone::AccentPressed, {0xFFCFE5E4, 0xFF35525A, 0xFF00404C}, "AccentPressed"},
    {Tone::AccentDisabled, {0xFFB9C9C8, 0xFF4A6468, 0xFF707070}, "AccentDisabled"},
    {Tone::Highlight, {0xFFE4F1F0, 0xFF31444A, 0xFF003A46}, "Highlight"},
    {Tone::HighlightPressed, {0xFFEFEBDF, 0xFF3A454B, 0xFF00404C}, "HighlightPressed"},
    {Tone::Focus, {0xFFC27400, 0xFFFFB92E, 0xFFFFFF00}, "Focus"},
    {Tone::Alarm, {0xFFC8231E, 0xFFFF8C84, 0xFFFFA0A0}, "Alarm"},
    {Tone::Guide, {0xFF8A1FB8, 0xFFE3A0FF, 0xFFFF8CFF}, "Guide"},
    {Tone::Field, {0xFFFFFFFF, 0xFF1F2528, 0xFF000000}, "Field"},
    {Tone::FieldEdge, {0xFF8E8878, 0xFF748189, 0xFFFFFFFF}, "FieldEdge"},
    {Tone::FieldDisabled, {0xFFEFEDE6, 0xFF2A3236, 0xFF000000}, "FieldDisabled"},
    {Tone::Button, {0xFFFBFAF7, 0xFF2A3236, 0xFF000000}, "Button"},
    {Tone::ButtonDisabled, {0xFFF3F1EA, 0xFF283034, 0xFF000000}, "ButtonDisabled"},
    {Tone::MenuEdge, {0xFFCFC8B8, 0xFF55626A, 0xFFFFFFFF}, "MenuEdge"},
    {Tone::Tip, {0xFFFFFBE6, 0xFF3A3A2A, 0xFF000000}, "Tip"},
    {Tone::Chip, {0xFFF3EFE4, 0xFF333C41, 0xFF000000}, "Chip"},
    {Tone::ChipEdge, {0xFFDDD7C8, 0xFF586770, 0xFFFFFFFF}, "ChipEdge"},
    {Tone::ChipInk, {0xFF3C3A33, 0xFFE2E7E9, 0xFFFFFFFF}, "ChipInk"},
    {Tone::Badge, {0xC8FFFFFF, 0xFF252C30, 0xFF000000}, "Badge"},
    {Tone::Shadow, {0x2D000000, 0x50000000, 0x50000000}, "Shadow"},
    {Tone::Track, {0xFFFFFDF8, 0xFF22292D, 0xFF000000}, "Track"},
    {Tone::TrackEdge, {0xFFCFC8B8, 0xFF55626A, 0xFFFFFFFF}, "TrackEdge"},
    {Tone::TrackOdd, {0xFFF7F3E8, 0xFF2A3236, 0xFF000000}, "TrackOdd"},
    {Tone::TrackLine, {0xFFE3DCCB, 0xFF3C484F, 0xFF8A8A8A}, "TrackLine"},
    {Tone::TrackInk, {0xFF6B6452, 0xFFA9B3B8, 0xFFFFFFFF}, "TrackInk"},
    {Tone::Goal, {0xFFFFF0A8, 0xFF5A4B00, 0xFF3A3000}, "Goal"},
    {Tone::GoalEdge, {0xFFD9B100, 0xFFE3BC1A, 0xFFFFFF00}, "GoalEdge"},
    {Tone::GoalInk, {0xFF6B5600, 0xFFFFE680, 0xFFFFFF00}, "GoalInk"},
    {Tone::LevelLow, {0xFF8FD3FF, 0xFF5BB4EA, 0xFF5BB4EA}, "LevelLow"},
    {Tone::LevelMiddle, {0xFFFFD65A, 0xFFE8BC3A, 0xFFE8BC3A}, "LevelMiddle"},
    {Tone::LevelHigh, {0xFFFF5A4A, 0xFFF0604F, 0xFFF0604F}, "LevelHigh"},
    {Tone::WaterLight, {0xFFCFEFEA, 0xFF1F5560, 0xFF06222A}, "WaterLight"},
    {Tone::WaterMiddle, {0xFF8FCFCB, 0xFF17444E, 0xFF041A20}, "WaterMiddle"},
    {Tone::WaterDeep, {0xFF74BBC0, 0xFF0F333C, 0xFF021014}, "WaterDeep"},
    {Tone::WaterEdge, {0xFF1F6570, 0xFF5FA9B4, 0xFFFFFFFF}, "WaterEdge"},
    {Tone::Ripple, {0x2CFFFFFF, 0x18FFFFFF, 0x00FFFFFF}, "Ripple"},
    {Tone::Glass, {0x2EFFFFFF, 0x1EFFFFFF, 0x00FFFFFF}, "Glass"},
    {Tone::GlassFar, {0x14FFFFFF, 0x0CFFFFFF, 0x00FFFFFF}, "GlassFar"},
    {Tone::GlassEdge, {0x82FFFFFF, 0x6EFFFFFF, 0xFFC8C8C8}, "GlassEdge"},
    {Tone::Stone, {0xFFCFC9BE, 0xFF8D887C, 0xFF8D887C}, "Stone"},
    {Tone::StoneDark, {0xFF7E776B, 0xFF5A564C, 0xFF5A564C}, "StoneDark"},
    {Tone::StoneEdge, {0xFF3A362E, 0xFFB9B3A4, 0xFFFFFFFF}, "StoneEdge"},
    {Tone::StoneShadow, {0x28083B42, 0x50000000, 0x50000000}, "StoneShadow"},
    {Tone::StoneShine, {0x82FFFFFF, 0x50FFFFFF, 0x50FFFFFF}, "StoneShine"},
    {Tone::SquareInk, {0xDC1F555E, 0xF0D6EEF0, 0xFFFFFFFF}, "SquareInk"},
    {Tone::NoFood, {0x46FFFFFF, 0x46FFFFFF, 0x64FFFFFF}, "NoFood"},
    {Tone::CountGround, {0xCDE6F6F3, 0xE60C2026, 0xFF000000}, "CountGround"},
    {Tone::CountInk, {0xFF0F3D45, 0xFFE8F6F4, 0xFFFFFFFF}, "CountInk"},
    {Tone::Offer, {0x5CFFF8D6, 0x50FFC84A, 0x40FFFF00}, "Offer"},
    {Tone::OfferBright, {0x96FFF8D6, 0x82FFC84A, 0x70FFFF00}, "OfferBright"},
    {Tone::OfferGlow, {0x2AFFBE28, 0x2AFFBE28, 0x20FFFF00}, "OfferGlow"},
    {Tone::OfferGlowBright, {0x40FFBE28, 0x40FFBE28, 0x30FFFF00}, "OfferGlowBright"},
    {Tone::OfferEdge, {0xFFFFAE00, 0xFFFFB92E, 0xFFFFFF00}, "OfferEdge"},
    {Tone::OfferLine, {0xFF5A3A00, 0xFFFFD98A, 0xFFFFFF00}, "OfferLine"},
    {Tone::SpokenOf, {0x3CFFFFFF, 0x32FFFFFF, 0x32FFFFFF}, "SpokenOf"},
    {Tone::SpokenOfEdge, {0xEBFFFFFF, 0xEBFFFFFF, 0xEBFFFFFF}, "SpokenOfEdge"},
    {Tone::Hover, {0xD2FFFFFF, 0xD2FFFFFF, 0xD2FFFFFF}, "Hover"},
    {Tone::PieceEdge, {0xFF101416, 0xFFFFFFFF, 0xFFFFFFFF}, "PieceEdge"},
    {Tone::PieceHalo, {0xFFFFFFFF, 0xFF101416, 0xFF101416}, "PieceHalo"},
    {Tone::Crack, {0xFF141414, 0xFF141414, 0xFF141414}, "Crack"},
    {Tone::PieceShadow, {0x22083B42, 0x50000000, 0x50000000}, "PieceShadow"},
    {Tone::Shine, {0x4BFFFFFF, 0x4BFFFFFF, 0x4BFFFFFF}, "Shine"},
    {Tone::PlanWater, {0xFF9AD5D0, 0xFF17444E, 0xFF06222A}, "PlanWater"},
    {Tone::PlanLine, {0xAAFFFFFF, 0x78FFFFFF, 0xFFC8C8C8}, "PlanLine"},
    {Tone::PlanStone, {0xFF9A9488, 0xFF8D887C, 0xFF8D887C}, "PlanStone"},
    {Tone::PlanEdge, {0xFF000000, 0xFF000000, 0xFF000000}, "PlanEdge"},
    {Tone::PlanPicked, {0xFFFFFF00, 0xFFFFFF00, 0xFFFFFF00}, "PlanPicked"},
};

constexpr bool InOrder() {
    int place = 0;
    for (const ToneRow& row : Tones) {
        if (static_cast<int>(row.What) != place++) {
            return false;
        }
    }
    return place == static_cast<int>(Tone::PlanPicked) + 1;
}
static_assert(InOrder(), "a row for every tone, in their order");

Scheme current = Scheme::Light;
double letters = 1;

/// Relative luminance of a colour, 0 (black) to 1 (white).
double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

Scheme CurrentScheme() {
    return current;
}

void SetScheme(Scheme scheme) {
    current = scheme;
}

Scheme SchemeOf(const QPalette& desktop) {
    const QColor ground = desktop.color(QPalette::Window);
    const QColor text = desktop.color(QPalette::WindowText);
    constexpr double nearlyBlackAndWhite = 20.5;
    if (ContrastOf(ground, text) >= nearlyBlackAndWhite) {
        return Scheme::Contrast;
    }
    return ground.lightnessF() < text.lightnessF() ? Scheme::Dark : Scheme::Light;
}

double ContrastOf(const QColor& one, const QColor& other) {
    const double first = Luminance(one);
    const double second = Luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor ShadeIn(Scheme scheme, Tone tone) {
    return QColor::fromRgba(Tones[static_cast<std::size_t>(tone)].In[static_cast<std::size_t>(scheme)]);
}

QColor Shade(Tone tone) {
    return ShadeIn(CurrentScheme(), tone);
}

namespace {

using Shades = std::array<ClanShades, MaxClans + 1>;

/// Blobs and cubes keep their colours in every scheme; their outlines stand out from what lies under them.
Shades MakeShades(const std::array<QRgb, MaxClans + 1>& edges) {
    constexpr QRgb bodies[][4] = {
        {0xFFE8E6E0, 0xFFB5B1A6, 0xFF6E6A60, 0xFF222222}, {0xFF9DA8FF, 0xFF2A3BFF, 0xFF0A1AA8, 0xFFFFFFFF},
        {0xFFFFC2FF, 0xFFE637E6, 0xFF8E0F8E, 0xFFFFFFFF}, {0xFFFFF8B8, 0xFFFFE52B, 0xFF9C8500, 0xFF1B1B12},
        {0xFFFFB3B6, 0xFFF0303A, 0xFF8A0A12, 0xFFFFFFFF}, {0xFFA9EBB4, 0xFF0E9F25, 0xFF07611A, 0xFFFFFFFF},
        {0xFFFFD3A6, 0xFFFF8A1F, 0xFF9A4B00, 0xFF1B1B12},
    };
    constexpr QRgb white = 0xFFFFFFFF;
    Shades shades;
    for (std::size_t clan = 0; clan < shades.size(); ++clan) {
        const auto& [light, body, deep, ink] = bodies[clan];
        const QColor nucleus = QColor::fromRgba(ink == white ? 0x26FFFFFF : 0x78FFFFFF);
        shades[clan] = {QColor(light), QColor(body), QColor(deep), QColor(edges[clan]), QColor(ink), nucleus};
    }
    return shades;
}

}  // namespace

const ClanShades& ShadesIn(Scheme scheme, int clan) {
    static const std::array<Shades, SchemeCount> shades = {
        MakeShades({0xFF5E5A50, 0xFF0A1AA8, 0xFF7A0A7A, 0xFF5C4E00, 0xFF8A0A12, 0xFF07541A, 0xFF7E3D00}),
        MakeShades({0xFFE8E6E0, 0xFFB4BDFF, 0xFFFFC2FF, 0xFFFFF8B8, 0xFFFFB3B6, 0xFFA9EBB4, 0xFFFFD3A6}),
        MakeShades({0xFFFFFFFF, 0xFFC8CFFF, 0xFFFFD6FF, 0xFFFFFAC8, 0xFFFFCBCD, 0xFFC2F2CA, 0xFFFFDFBD}),
    };
    const bool named = clan >= 1 && clan <= MaxClans;
    return shades[static_cast<std::size_t>(scheme)][named ? static_cast<std::size_t>(clan) : 0];
}

const ClanShades& ShadesOf(int clan) {
    return ShadesIn(CurrentScheme(), clan);
}

double Letters() {
    return letters;
}

void SetLetters(double factor) {
    letters = factor;
}

int Px(double usual) {
    return static_cast<int>(std::lround(usual * letters));
}

// Longer names first: "@CardEdge" is not "@Card" and more.
QString Styled(QString sheet) {
    static const std::vector<const ToneRow*> rows = [] {
        std::vector<const ToneRow*> sorted;
        for (const ToneRow& row : Tones) {
            sorted.push_back(&row);
        }
        std::stable_sort(sorted.begin(), sorted.end(), [](const ToneRow* one, const ToneRow* other) {
            return std::string_view(one->Name).size() > std::string_view(other->Name).size();
        });
        return sorted;
    }();
    for (const ToneRow* row : rows) {
        const QColor colour = Shade(row->What);
        sheet.replace(QLatin1Char('@') + QLatin1String(row->Name), QStringLiteral("rgba(%1,%2,%3,%4)")
                                                                       .arg(colour.red())
                                                                       .arg(colour.green())
                                                                       .arg(colour.blue())
                                                                       .arg(colour.alpha()));
    }
    static const QRegularExpression length(QStringLiteral("@(\\d+)px"));
    for (auto found = length.match(sheet); found.hasMatch(); found = length.match(sheet)) {
        sheet.replace(found.capturedStart(), found.capturedLength(),
                      QStringLiteral("%1px").arg(Px(found.captured(1).toInt())));
    }
    return sheet;
}

}  // namespace plasmos

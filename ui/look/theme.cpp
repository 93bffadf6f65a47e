// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/theme.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "model/game_state.h"

namespace plasmos {

namespace {

struct ToneRow {
    Tone What;
    const char* Name;
    QRgb Light;
};

constexpr ToneRow Tones[] = {
    {Tone::Window, "Window", 0xFFF4F2EC},
    {Tone::Card, "Card", 0xFFFFFFFF},
    {Tone::CardEdge, "CardEdge", 0xFFDDD8CB},
    {Tone::Ink, "Ink", 0xFF22272B},
    {Tone::Faint, "Faint", 0xFF7A7669},
    {Tone::Disabled, "Disabled", 0xFFA5A195},
    {Tone::Placeholder, "Placeholder", 0xFF9A958A},
    {Tone::Accent, "Accent", 0xFF2C6E78},
    {Tone::OnAccent, "OnAccent", 0xFFFFFFFF},
    {Tone::AccentHover, "AccentHover", 0xFF37848F},
    {Tone::AccentPressed, "AccentPressed", 0xFFCFE5E4},
    {Tone::AccentDisabled, "AccentDisabled", 0xFFB9C9C8},
    {Tone::Highlight, "Highlight", 0xFFE4F1F0},
    {Tone::HighlightPressed, "HighlightPressed", 0xFFEFEBDF},
    {Tone::Focus, "Focus", 0xFFFFAE00},
    {Tone::Alarm, "Alarm", 0xFFC8231E},
    {Tone::Field, "Field", 0xFFFFFFFF},
    {Tone::FieldEdge, "FieldEdge", 0xFFBDB7A8},
    {Tone::FieldDisabled, "FieldDisabled", 0xFFEFEDE6},
    {Tone::Button, "Button", 0xFFFBFAF7},
    {Tone::ButtonDisabled, "ButtonDisabled", 0xFFF3F1EA},
    {Tone::MenuEdge, "MenuEdge", 0xFFCFC8B8},
    {Tone::Tip, "Tip", 0xFFFFFBE6},
    {Tone::Chip, "Chip", 0xFFF3EFE4},
    {Tone::ChipEdge, "ChipEdge", 0xFFDDD7C8},
    {Tone::ChipInk, "ChipInk", 0xFF3C3A33},
    {Tone::Badge, "Badge", 0xC8FFFFFF},
    {Tone::Shadow, "Shadow", 0x2D000000},
    {Tone::Track, "Track", 0xFFFFFDF8},
    {Tone::TrackEdge, "TrackEdge", 0xFFCFC8B8},
    {Tone::TrackOdd, "TrackOdd", 0xFFF7F3E8},
    {Tone::TrackLine, "TrackLine", 0xFFE3DCCB},
    {Tone::TrackInk, "TrackInk", 0xFF8A8270},
    {Tone::Goal, "Goal", 0xFFFFF0A8},
    {Tone::GoalEdge, "GoalEdge", 0xFFD9B100},
    {Tone::GoalInk, "GoalInk", 0xFF7A6200},
    {Tone::LevelLow, "LevelLow", 0xFF8FD3FF},
    {Tone::LevelMiddle, "LevelMiddle", 0xFFFFD65A},
    {Tone::LevelHigh, "LevelHigh", 0xFFFF5A4A},
    {Tone::WaterLight, "WaterLight", 0xFFCFEFEA},
    {Tone::WaterMiddle, "WaterMiddle", 0xFF8FCFCB},
    {Tone::WaterDeep, "WaterDeep", 0xFF4C9AA3},
    {Tone::WaterEdge, "WaterEdge", 0x782F7E88},
    {Tone::Ripple, "Ripple", 0x2CFFFFFF},
    {Tone::Glass, "Glass", 0x2EFFFFFF},
    {Tone::GlassFar, "GlassFar", 0x14FFFFFF},
    {Tone::GlassEdge, "GlassEdge", 0x82FFFFFF},
    {Tone::Stone, "Stone", 0xFFCFC9BE},
    {Tone::StoneDark, "StoneDark", 0xFF7E776B},
    {Tone::StoneEdge, "StoneEdge", 0xFF6A6458},
    {Tone::StoneShadow, "StoneShadow", 0x28083B42},
    {Tone::StoneShine, "StoneShine", 0x82FFFFFF},
    {Tone::SquareInk, "SquareInk", 0xDC1F555E},
    {Tone::NoFood, "NoFood", 0x46FFFFFF},
    {Tone::CountGround, "CountGround", 0xCDE6F6F3},
    {Tone::CountInk, "CountInk", 0xFF0F3D45},
    {Tone::Offer, "Offer", 0x5CFFF8D6},
    {Tone::OfferBright, "OfferBright", 0x96FFF8D6},
    {Tone::OfferGlow, "OfferGlow", 0x2AFFBE28},
    {Tone::OfferGlowBright, "OfferGlowBright", 0x40FFBE28},
    {Tone::OfferEdge, "OfferEdge", 0xFFFFAE00},
    {Tone::SpokenOf, "SpokenOf", 0x3CFFFFFF},
    {Tone::SpokenOfEdge, "SpokenOfEdge", 0xEBFFFFFF},
    {Tone::Hover, "Hover", 0xD2FFFFFF},
    {Tone::PieceEdge, "PieceEdge", 0xFF101416},
    {Tone::PieceHalo, "PieceHalo", 0xFFFFFFFF},
    {Tone::Crack, "Crack", 0xFF141414},
    {Tone::PieceShadow, "PieceShadow", 0x22083B42},
    {Tone::Shine, "Shine", 0x4BFFFFFF},
    {Tone::PlanWater, "PlanWater", 0xFF9AD5D0},
    {Tone::PlanLine, "PlanLine", 0xAAFFFFFF},
    {Tone::PlanStone, "PlanStone", 0xFF9A9488},
    {Tone::PlanEdge, "PlanEdge", 0xFF000000},
    {Tone::PlanPicked, "PlanPicked", 0xFFFFFF00},
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

}  // namespace

QColor Shade(Tone tone) {
    return QColor::fromRgba(Tones[static_cast<std::size_t>(tone)].Light);
}

const ClanShades& ShadesOf(int clan) {
    static const std::array<ClanShades, 7> shades = {{
        {QColor(0xE8E6E0), QColor(0xB5B1A6), QColor(0x6E6A60), QColor(0x222222), QColor(255, 255, 255, 120)},
        {QColor(0x9DA8FF), QColor(0x2A3BFF), QColor(0x0A1AA8), QColor(0xFFFFFF), QColor(255, 255, 255, 38)},
        {QColor(0xFFC2FF), QColor(0xE637E6), QColor(0x8E0F8E), QColor(0xFFFFFF), QColor(255, 255, 255, 38)},
        {QColor(0xFFF8B8), QColor(0xFFE52B), QColor(0x9C8500), QColor(0x1B1B12), QColor(255, 255, 255, 120)},
        {QColor(0xFFB3B6), QColor(0xF0303A), QColor(0x8A0A12), QColor(0xFFFFFF), QColor(255, 255, 255, 38)},
        {QColor(0xA9EBB4), QColor(0x12B02A), QColor(0x07611A), QColor(0xFFFFFF), QColor(255, 255, 255, 38)},
        {QColor(0xFFD3A6), QColor(0xFF8A1F), QColor(0x9A4B00), QColor(0x1B1B12), QColor(255, 255, 255, 120)},
    }};
    return shades[clan >= 1 && clan <= MaxClans ? static_cast<std::size_t>(clan) : 0];
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
    return sheet;
}

}  // namespace plasmos

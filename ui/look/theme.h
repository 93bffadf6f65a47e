// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

namespace plasmos {

/// What a colour is for. No colour of the window is written down anywhere but in the table of these, and with the
/// shades of the clans.
enum class Tone {
    // ---- the furniture ----
    Window,
    Card,
    CardEdge,
    Ink,    ///< text
    Faint,  ///< text that stands back
    Disabled,
    Placeholder,
    Accent,  ///< headings, main buttons, the drift
    OnAccent,
    AccentHover,
    AccentPressed,
    AccentDisabled,
    Highlight,  ///< under the pointer
    HighlightPressed,
    Focus,  ///< where the keyboard is
    Alarm,
    Field,  ///< where something can be typed, and lists
    FieldEdge,
    FieldDisabled,
    Button,
    ButtonDisabled,
    MenuEdge,
    Tip,
    Chip,
    ChipEdge,
    ChipInk,
    Badge,   ///< under a clan's sign on its own colour
    Shadow,  ///< under what lies on a card

    // ---- the score track ----
    Track,
    TrackEdge,
    TrackOdd,
    TrackLine,
    TrackInk,
    Goal,
    GoalEdge,
    GoalInk,

    // ---- the levels of UV light ----
    LevelLow,
    LevelMiddle,
    LevelHigh,

    // ---- the puddle ----
    WaterLight,
    WaterMiddle,
    WaterDeep,
    WaterEdge,
    Ripple,
    Glass,
    GlassFar,
    GlassEdge,
    Stone,
    StoneDark,
    StoneEdge,
    StoneShadow,
    StoneShine,
    SquareInk,
    NoFood,
    CountGround,
    CountInk,
    Offer,
    OfferBright,
    OfferGlow,
    OfferGlowBright,
    OfferEdge,
    SpokenOf,
    SpokenOfEdge,
    Hover,
    PieceEdge,  ///< the outline of the piece that acts
    PieceHalo,
    Crack,
    PieceShadow,
    Shine,
    PlanWater,  ///< the small board of the preferences
    PlanLine,
    PlanStone,
    PlanEdge,
    PlanPicked,
};

/// The colour that something has now.
QColor Shade(Tone tone);
/// The shades in which one clan is drawn.
struct ClanShades {
    QColor Light;    ///< the lit side of a blob
    QColor Body;     ///< cubes, markers, signs on white
    QColor Dark;     ///< outlines and small signs
    QColor Ink;      ///< numbers and signs on the body colour
    QColor Nucleus;  ///< laid over the body colour, under the number
};

/// Shades of clan 1..6; greys for any other number.
const ClanShades& ShadesOf(int clan);

/// A style sheet in which "@Ink" stands for the colour of Tone::Ink.
QString Styled(QString sheet);

}  // namespace plasmos

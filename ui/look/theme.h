// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>
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
    Guide,  ///< what somebody who explains points at
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
    OfferLine,  ///< around the glow, for whom amber and water are alike
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

/// What a window is coloured for.
enum class Scheme { Light, Dark, Contrast };
inline constexpr int SchemeCount = 3;

/// The scheme in force; the light one until another is set.
Scheme CurrentScheme();
void SetScheme(Scheme scheme);
/// The scheme that goes with a desktop's palette: light letters want the dark one, and black with white or white with
/// black, and nothing between, high contrast.
Scheme SchemeOf(const QPalette& desktop);

/// The colour that something has now, and in a scheme.
QColor Shade(Tone tone);
QColor ShadeIn(Scheme scheme, Tone tone);
/// How well two colours are told apart, 1 (not at all) to 21, by their relative luminance; 4.5 lets a text be read.
double ContrastOf(const QColor& one, const QColor& other);
/// The shades in which one clan is drawn.
struct ClanShades {
    QColor Light;    ///< the lit side of a blob
    QColor Body;     ///< cubes, markers, signs
    QColor Deep;     ///< the far side of a blob
    QColor Edge;     ///< outlines and small signs, on water and on cards
    QColor Ink;      ///< numbers and signs on the body colour
    QColor Nucleus;  ///< laid over the body colour, under the number
};

/// Shades of clan 1..6 in the scheme in force; greys for any other number.
const ClanShades& ShadesOf(int clan);
const ClanShades& ShadesIn(Scheme scheme, int clan);

/// How much larger letters are than usual: 1 up to a desktop's letters of 11 points, more with larger ones and in a
/// large window.
double Letters();
void SetLetters(double factor);
/// A length for what surrounds letters, in pixels, from what it is with usual ones.
int Px(double usual);
/// A style sheet in which "@Ink" stands for the colour of Tone::Ink, and "@13px" for what 13 pixels are among usual
/// letters.
QString Styled(QString sheet);

}  // namespace plasmos

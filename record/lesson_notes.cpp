// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/lesson_notes.h"

#include "model/game_state.h"
#include "questions/visit.h"
#include "record/guided_game.h"

namespace plasmos {

namespace {

std::string_view YesNoNote(const GameState& state) {
    const auto phase = state.Phase.View();
    if (phase == "Movement") {
        return "Moving comes first in every turn. An amoeba drifts for nothing; for 1 BP a die is thrown, and it must "
               "go "
               "where the die says. Genes such as Movement, Speed, Escape and Defence bring questions of their own.";
    }
    if (phase == "New genes") {
        return "Once a turn every clan may buy genes. A gene costs its BP once, serves every amoeba of the clan, and "
               "adds to "
               "its mutation level.";
    }
    if (phase == "Division") {
        return "Every clan gets BP each turn and may turn them into amoebas, each on a free square next to one of its "
               "own. Amoebas on the board are most of the score.";
    }
    return "An amoeba with Aggression may attack another clan's in its square. What follows is decided by a die and by "
           "the genes on both sides.";
}

std::string_view SquareNote(const GameState& state) {
    return state.Phase.View() == "Movement"
               ? "Click one of the glowing squares. Look for food of three pieces in two other colours, and for room: "
                 "what your clan leaves behind it cannot eat itself."
               : "Click one of the glowing squares. The amoeba begins there, and it will eat there first.";
}

std::string_view GenesNote(const GeneForm& form) {
    return form.Adapts ? "The UV light is stronger than your clan's genes allow. Give up genes, or pay 1 BP for each "
                         "point that is left over, until the mutation level is no higher than the UV level."
                       : "Point at a gene to read what it does. A tick buys it; ticking it off gives it back. Mind the "
                         "mutation level: above the UV level genes have to be given up.";
}

using Kind = QuestionKind;

constexpr Lesson LessonRows[] = {
    {Kind::Number, "number 3", "number 3",
     "How many clans share the puddle? One of them is yours, the others are the computer's. Three leave room to "
     "learn."},
    {Kind::Square, "square 13", "square 13",
     "Every clan begins with two amoebas. Each square holds two pieces of food in every colour, so any will do; from "
     "the "
     "middle you can go everywhere."},
    {Kind::Square, "square 18", "square 18",
     "Your second amoeba begins next to the first; each has a square of food to itself."},
    {Kind::YesNo, "yes", "yes",
     "A turn begins with moving. The drift would carry the framed amoeba into the square with the dashed edge, free of "
     "charge. For 1 of your 4 BP, with which everything is paid, a die decides instead: try it once."},
    {Kind::Square, "square 12", "square 12",
     "The die shows a 6: your amoeba may go where it wants. Any of these squares has all its food."},
    {Kind::Food, "suggestion;eat 2,1,0", "eat 2,1,0",
     "Now it eats: with three clans two pieces of one other colour and one of a second, written 21, never its own. "
     "Enter "
     "the suggested menu, then press Eat. Two pieces in your colour stay behind as food for others."},
    {Kind::YesNo, "no", "no", "Your second amoeba. The drift takes it to a full square anyhow, so save the BP."},
    {Kind::Food, "suggestion;eat 2,1,0", "eat 2,1,0",
     "There is plenty here too. An amoeba that finds no meal takes damage; it can bear that once."},
    {Kind::YesNo, "yes", "yes",
     "All have moved, and a new card tells UV light and drift of the next turn. Now genes: you have 3 BP, enough for a "
     "first one. To look costs nothing."},
    {Kind::Genes, "tick 2;done", "tick 2;done",
     "Movement 1 throws two dice where others throw one, and you choose. It adds 2 to your mutation level: whose level "
     "is "
     "above the UV level has to give genes up. Tick it, then press Done."},
    {Kind::YesNo, "yes", "yes",
     "Among three clans each gets 10 BP a turn, and an amoeba costs 6. More amoebas mean more points, and more "
     "mouths."},
    {Kind::Number, "number 1", "number 1", "Your BP are enough for one; the rest stays with you for the next turn."},
    {Kind::Square, "square 13", "square 13",
     "It is born next to one of its clan, where none of yours lies yet. Here all the food is untouched."},
    {Kind::YesNo, "no", "no",
     "The turn has been scored: 1 point for three amoebas, and your marker jumped over a taken space, so you lead; the "
     "leader moves last. The new card lets all go where they want, free of charge: paying brings nothing."},
    {Kind::Square, "square 11", "square 11",
     "Where it stands it has left food of your own colour, which your clan cannot eat. On to fresh food."},
    {Kind::Food, "suggestion;eat 2,1,0", "eat 2,1,0",
     "The same meal as before. The line above Eat tells at any time whether what you have entered is legal."},
    {Kind::YesNo, "no", "no", "Your second amoeba, and free of charge again."},
    {Kind::Square, "square 18", "square 18", "A square with two pieces of every colour."},
    {Kind::Food, "suggestion;eat 2,1,0", "eat 2,1,0",
     "You could also type another meal of two and one: what you leave is what others find."},
    {Kind::YesNo, "no", "no", "Your youngest. It may stay where it is, or go."},
    {Kind::Square, "square 14", "square 14",
     "It could stay and eat, too. If it goes, it leaves a full square behind for another turn."},
    {Kind::Food, "suggestion;eat 2,1,0", "eat 2,1,0", "The last meal of this turn."},
    {Kind::YesNo, "no", "no",
     "You could buy Spores or another small gene. But 4 BP and the next 10 make two amoebas: leave the genes for now."},
    {Kind::YesNo, "yes", "yes", "You have 14 BP, enough for two amoebas."},
    {Kind::Number, "number 2", "number 2", "Both at once: three amoebas score 1 point a turn, five score 4."},
    {Kind::Square, "square 15", "square 15",
     "Amoebas move before they eat, and the card already shows the next drift: up. From here it leads to square 10, "
     "where "
     "all the food lies."},
    {Kind::Square, "square 6", "square 6",
     "And from here to square 1, as good. That was the last lesson: fights and adapting to the UV light are explained "
     "when they come."},
};

}  // namespace

std::string TopicNote(const Question& question, const GameState& state) {
    return std::string(Visit(
        question,
        Overloaded{[&](const YesNoQuestion&) { return YesNoNote(state); },
                   [&](const SquareQuestion&) { return SquareNote(state); },
                   [](const AmNumfrm&) {
                       return std::string_view("Choose a number. The line below says what each one costs.");
                   },
                   [](const AmChoicefrm&) {
                       return std::string_view(
                           "Choose one of your amoebas, or none of them. All of them are told by their "
                           "numbers, and the board shows where they are.");
                   },
                   [](const FoodForm&) {
                       return std::string_view(
                           "What may be eaten stands on the buttons above the fields. An amoeba that does "
                           "not eat takes damage, and dies of the second.");
                   },
                   [](const VictimForm&) {
                       return std::string_view(
                           "Click the amoeba that is meant, then Done. Closing the dialog takes the choice "
                           "back.");
                   },
                   [](const GeneForm& form) { return GenesNote(form); },
                   [](const BoxQuestion&) { return std::string_view("This only has to be read: OK goes on."); }}));
}

std::span<const Lesson> Lessons() {
    return LessonRows;
}

}  // namespace plasmos

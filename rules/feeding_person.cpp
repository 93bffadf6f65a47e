// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include "model/bio_points.h"
#include "rules/fight.h"

#include "model/genes.h"
#include "model/narration.h"
#include "model/presentation.h"
#include "questions/ask.h"
#include "questions/food_form.h"
#include "questions/victim_form.h"
#include "rules/feeding.h"
#include "rules/hints.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

int CountHosts(int square, int clan) {
    int hosts = 0;
    for (int host = 1; host <= game.NumPlayers && hosts < 2; ++host) {
        hosts += IsHost(square, clan, host) ? 1 : 0;
    }
    return hosts;
}

/// The menu that the person has typed: fills two lists from the fields, own colour left out, lent pieces as 1 of
/// colour 0, and sorts them.
int TypedMenu(const FoodForm& form, Table<int, 0, 7>& amounts, Table<int, 0, 7>& colours) {
    amounts = {};
    colours = {};
    int place = 0;
    const auto add = [&](int amount, int colour) {
        ++place;
        amounts[place] = amount;
        colours[place] = colour;
    };
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        const int amount = form.Amount(colour);
        if (colour != form.Clan && amount >= 1) {
            add(std::min(amount, 10), colour);
        }
    }
    if (form.fdtxt[0].Visible) {
        add(1, 0);
    }
    if (form.fdtxt[7].Visible) {
        add(1, 0);
    }
    return SortMenuDigits(amounts, colours);
}

/// The same into the menu work lists.
int MakeEatStr(const FoodForm& form) {
    return TypedMenu(form, game.MenuAmounts, game.MenuColours);
}

template <class Test>
bool AnyForeignAmount(const FoodForm& form, Test&& test) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        if (colour != form.Clan && test(colour, form.Amount(colour))) {
            return true;
        }
    }
    return false;
}

/// What eatb would come to: the amounts are looked at first, then the menu.
EntryVerdict JudgeMeal(const FoodForm& form) {
    using Kind = EntryVerdict::Kind;
    Table<int, 0, 7> amounts;
    Table<int, 0, 7> colours;
    const int menu = TypedMenu(form, amounts, colours);
    if (menu == 0 && form.SuggestedMenu == 0) {
        return {Kind::Starves, 0};
    }
    if (AnyForeignAmount(form, [&](int colour, int amount) { return amount > game.Food[form.Square][colour]; })) {
        return {Kind::TooMuch, menu};
    }
    const bool tooLarge = AnyForeignAmount(form, [](int, int amount) { return amount > 9; });
    return {tooLarge || !IsLegalMenu(menu) ? Kind::NotLegal : Kind::Legal, menu};
}

bool CanParasitize(int square, int clan) {
    return FindParasiteMeal(square, clan).Menu != 0;
}

void PrepareFoodForm(FoodForm& form, int menu, bool victim) {
    const int clan = form.Clan;
    const int square = form.Square;
    LegalEat(0);
    form.LegalMenuLabel = Concat("Legal menu(s): ", game.LegalMenus);
    form.LegalMenus = LegalMenusOf(clan);
    form.Recount = [](const FoodForm& typed) { LegalEat(MakeEatStr(typed)); };
    form.Judge = JudgeMeal;
    form.SuggestedMenu = menu;
    form.SuggestedAmounts = SuggestedAmounts(square, clan);
    form.sfsoptVisible = form.sfsoptEnabled = victim && IsFighter(clan) && menu == 0 && game.BP[clan] >= 1;
    form.paroptEnabled = CanParasitize(square, clan);
    if (form.paroptEnabled) {
        form.HostCount = Concat(CountHosts(square, clan));
    }
    form.Text = Concat("Your amoeba may eat the suggested menu in square ", square,
                       ", or using your amoebas' genes you may design your own.");
    form.Hint = FeedingHint(form, game.CurAmoeba);
    form.UpdateButtons();
}

/// One person's feeding with its dialog open.
class FeedingTurn {
public:
    FeedingTurn(FoodForm& form, OpenQuestion& open) : form_(form), open_(open) {}

    void Run() {
        while (!done_) {
            open_.Wait();
            const auto pressed = form_.Pressed;
            form_.Resume();
            switch (pressed) {
                case FoodForm::Button::Eat: Eat(); break;
                case FoodForm::Button::Victim: form_.sfsoptValue ? Struggle() : PickHost(); break;
                case FoodForm::Button::Closed: CloseForm(); break;
                case FoodForm::Button::None: break;
            }
            if (!done_) {
                Board().Refresh(form_);
            }
        }
    }

    /// What is left to do once the dialog is gone.
    enum class Outcome { Starves, Eats, Fights };
    Outcome Ends = Outcome::Starves;
    int Menu = 0;
    VictimFigure Victim;

private:
    void End(Outcome outcome, const Answer& answer) {
        Ends = outcome;
        done_ = true;
        NoteAnswer(form_, answer, true);
    }

    void Refuse(const std::string& message) {
        NoteAnswer(form_, WithAmounts(Answer::Kind::Eat, form_.Entry()), false);
        ShowBox(form_.Clan, message);
        form_.Text = "Please try again.";
        ShowQuestionText(form_.Text, form_.Clan);
    }

    std::string NotLegal(int menu) const {
        LegalEat(menu);
        return Concat("The menu you chose was not legal.\nPossible menus are: ", game.LegalMenus,
                      " (depending on the food and amounts in square!)");
    }

    void Eat() {
        const EntryVerdict verdict = JudgeMeal(form_);
        if (verdict.What == EntryVerdict::Kind::Starves) {
            End(Outcome::Starves, Plain(Answer::Kind::Starve));
        } else if (verdict.What == EntryVerdict::Kind::TooMuch) {
            Refuse("You cannot eat more food than is in the square; please try again.");
        } else if (!verdict.Passes()) {
            Refuse(NotLegal(verdict.Menu));
        } else {
            MakeEatStr(form_);
            Menu = verdict.Menu;
            End(Outcome::Eats, WithAmounts(Answer::Kind::Eat, form_.Entry()));
        }
    }

    void CloseForm() {
        if (form_.SuggestedMenu == 0) {
            End(Outcome::Starves, Plain(Answer::Kind::Starve));
        } else {
            Refuse(NotLegal(0));
        }
    }

    void PickHost() {
        VictimForm victims(form_.Clan, "PARASITE", "Choose your Parasite-victim:", form_.Square);
        victims.Hint = HostHint();
        const int next = form_.fdtxt[0].Visible ? 2 : 1;
        for (const VictimFigure& figure : victims.Figures) {
            if (IsHost(form_.Square, form_.Clan, figure.Clan) && figure.Clan != form_.Hosts[1] && next <= 2) {
                victims.Allow(figure.Clan, figure.Amoeba);
            }
        }
        if (form_.fdtxt[7].Visible || !victims.HasChoice()) {
            ShowQuestionText("There is no further host to pick; eat, or design another menu.", form_.Clan);
            return;
        }
        const auto picked = AskVictims(victims);
        if (!picked.empty()) {
            form_.Hosts[next] = picked.front().Clan;
            form_.fdtxt[next == 1 ? 0 : 7].Visible = true;
            form_.fdtxt[next == 1 ? 0 : 7].Text = "1";
            form_.UpdateButtons();
        }
    }

    void Struggle() {
        VictimForm victims(form_.Clan, "SFS", "Choose your Attack-victim:", form_.Square);
        victims.Hint = StruggleHint(form_.Clan, game.CurAmoeba);
        for (const VictimFigure& figure : victims.Figures) {
            if (IsVictim(form_.Square, form_.Clan, figure.Clan)) {
                victims.Allow(figure.Clan, figure.Amoeba);
            }
        }
        const auto picked = AskVictims(victims);
        if (!picked.empty()) {
            Victim = picked.front();
            End(Outcome::Fights, WithPieces(Answer::Kind::Fight, {{Victim.Clan, Victim.Amoeba}}));
        }
    }

    FoodForm& form_;
    OpenQuestion& open_;
    bool done_ = false;
};

void EatTyped(const FoodForm& form, int menu) {
    MakeEatStr(form);
    if (form.fdtxt[0].Visible) {
        ParasiteMeal meal;
        meal.Menu = menu;
        meal.Hosts = form.Hosts;
        meal.HostCount = form.fdtxt[7].Visible ? 2 : 1;
        EatAsParasite(meal, form.Square);
    } else {
        EatMenu(menu, form.Square);
    }
}

void Fight(int square, int clan, const VictimFigure& victim) {
    PayBP(clan, 1);
    bool hungry = true;
    AttackToEat(victim.Clan, square, clan, hungry, victim.Amoeba);
    if (hungry) {
        Starve(square);
    }
}

void FeedByDialog(FoodForm& form) {
    FeedingTurn::Outcome ends{};
    int menu = 0;
    VictimFigure victim;
    {
        OpenQuestion open(form);
        FeedingTurn turn(form, open);
        turn.Run();
        ends = turn.Ends;
        menu = turn.Menu;
        victim = turn.Victim;
    }
    ClearMessage();
    switch (ends) {
        case FeedingTurn::Outcome::Eats: EatTyped(form, menu); break;
        case FeedingTurn::Outcome::Fights: Fight(form.Square, form.Clan, victim); break;
        case FeedingTurn::Outcome::Starves: Starve(form.Square); break;
    }
}

}  // namespace

void FeedAmoeba(int square, int clan) {
    const bool victim = HasVictim(square, clan);
    const int menu = SuggestMenu(square, clan);
    const bool alternative = (IsFighter(clan) || HasGene(clan, "par")) && victim;
    if (menu == 0 && !alternative) {
        Starve(square);
        return;
    }
    FoodForm form(clan, "", square);
    PrepareFoodForm(form, menu, victim);
    if (menu == 0 && !form.sfsoptEnabled && !form.paroptEnabled) {
        Starve(square);
        return;
    }
    ShowQuestionText(form.Text, clan);
    FeedByDialog(form);
}

}  // namespace plasmos

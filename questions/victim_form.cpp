// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/victim_form.h"

#include <algorithm>

#include "questions/ask.h"

namespace plasmos {

std::string VictimFigure::Tag() const {
    return Concat(Clan, ",", Amoeba);
}

VictimForm::VictimForm(int clan, std::string_view mode, std::string caption, int square)
    : Question(QuestionKind::Victim, clan, std::move(caption)), Mode(mode), Square(square), vfamlab(Text) {
    for (int owner = 1; owner <= game.NumPlayers; ++owner) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            if (game.Amoeba[amoeba][owner].Square == square) {
                Figures.push_back({owner, amoeba});
            }
        }
    }
    game.ReplyY = 0;
}

bool VictimForm::Answered() const {
    return game.ReplyY != 0;
}

void VictimForm::Allow(int clan, int amoeba) {
    for (VictimFigure& figure : Figures) {
        if (figure.Clan == clan && figure.Amoeba == amoeba) {
            figure.Markable = true;
        }
    }
}

bool VictimForm::HasChoice() const {
    return std::any_of(Figures.begin(), Figures.end(), [](const auto& figure) { return figure.Markable; });
}

std::vector<VictimFigure> VictimForm::Picked() const {
    std::vector<VictimFigure> picked;
    for (const VictimFigure& figure : Figures) {
        if (figure.Marked && !closed_) {
            picked.push_back(figure);
        }
    }
    return picked;
}

void VictimForm::DescribeMarked() {
    vfamlab = Text;
    donebEnabled = false;
    for (const VictimFigure& figure : Figures) {
        if (figure.Marked) {
            const Piece& piece = game.Amoeba[figure.Amoeba][figure.Clan];
            vfamlab += Concat("\n", figure.Amoeba, "- ", piece.Name, " (", piece.Damage, ") of ",
                              game.Players[figure.Clan].Name);
            donebEnabled = true;
        }
    }
}

void VictimForm::figure_Click(int index) {
    const bool known = index >= 0 && index < static_cast<int>(Figures.size());
    if (!known || !Figures[static_cast<std::size_t>(index)].Markable) {
        NoteAnswer(*this, Concat("mark ", index), false);
        return;
    }
    VictimFigure& clicked = Figures[static_cast<std::size_t>(index)];
    const bool mark = Mode != "HOLD" || !clicked.Marked;
    if (Mode != "HOLD") {
        for (VictimFigure& figure : Figures) {
            figure.Marked = false;
        }
    }
    clicked.Marked = mark;
    DescribeMarked();
}

void VictimForm::doneb_Click() {
    if (donebEnabled) {
        donebEnabled = false;
        game.ReplyY = 1;
    }
}

void VictimForm::Form_Close() {
    closed_ = true;
    game.ReplyY = 1;
}

void VictimForm::Form_Deactivate() {
    if (Mode != "HOLD" || Answered()) {
        return;
    }
    for (VictimFigure& figure : Figures) {
        figure.Marked = figure.Marked && game.Amoeba[figure.Amoeba][figure.Clan].Square == Square;
    }
    DescribeMarked();
}

std::vector<VictimFigure> AskVictims(VictimForm& form) {
    const auto modeBefore = game.DialogMode;
    game.DialogMode = form.Mode;
    auto picked = [&] {
        OpenQuestion open(form);
        open.Wait();
        return form.Picked();
    }();
    std::string answer;
    for (const VictimFigure& figure : picked) {
        answer += Concat(answer.empty() ? "" : " ", figure.Tag());
    }
    NoteAnswer(form, answer, true);
    game.DialogMode = modeBefore;
    game.ReplyY = -1;
    return picked;
}

}  // namespace plasmos

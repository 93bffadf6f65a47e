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

VictimForm::~VictimForm() {
    game.ReplyY = -1;
}

std::vector<Answer> VictimForm::Allowed() const {
    std::vector<Answer> allowed;
    for (int index = 0; index < static_cast<int>(Figures.size()); ++index) {
        if (Figures[static_cast<std::size_t>(index)].Markable) {
            allowed.push_back(Numbered(Answer::Kind::Mark, index));
        }
    }
    if (donebEnabled) {
        allowed.push_back(Plain(Answer::Kind::Done));
    }
    allowed.push_back(WithPieces(Answer::Kind::Pick, {}));
    return allowed;
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

void VictimForm::Store(const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Mark: Mark(answer); break;
        case Answer::Kind::Pick: MarkAll(answer); break;
        case Answer::Kind::LookAway: LookAway(); break;
        case Answer::Kind::Close: Finish(true); break;
        case Answer::Kind::Done:
            if (donebEnabled) {
                Finish(false);
            }
            break;
        default: NoteAnswer(*this, answer, false);
    }
}

void VictimForm::Mark(const Answer& answer) {
    const int index = answer.Number;
    const bool known = index >= 0 && index < static_cast<int>(Figures.size());
    if (!known || !Figures[static_cast<std::size_t>(index)].Markable) {
        NoteAnswer(*this, answer, false);
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

/// Marks these figures, and done; without any the pick of nothing.
void VictimForm::MarkAll(const Answer& answer) {
    const auto isMeant = [&](const VictimFigure& figure) {
        const Answer::Piece piece{figure.Clan, figure.Amoeba};
        return figure.Markable && std::count(answer.Pieces.begin(), answer.Pieces.end(), piece) > 0;
    };
    const auto meant = std::count_if(Figures.begin(), Figures.end(), isMeant);
    if (meant != static_cast<std::ptrdiff_t>(answer.Pieces.size()) || (Mode != "HOLD" && meant > 1)) {
        NoteAnswer(*this, answer, false);
        return;
    }
    for (VictimFigure& figure : Figures) {
        figure.Marked = isMeant(figure);
    }
    DescribeMarked();
    Finish(meant == 0);
}

void VictimForm::Finish(bool closed) {
    over_ = true;
    closed_ = closed;
    donebEnabled = false;
    game.ReplyY = 1;
}

void VictimForm::LookAway() {
    if (Mode != "HOLD") {
        return;
    }
    for (VictimFigure& figure : Figures) {
        figure.Marked = figure.Marked && game.Amoeba[figure.Amoeba][figure.Clan].Square == Square;
    }
    DescribeMarked();
}

std::vector<VictimFigure> AskVictims(VictimForm& form) {
    std::vector<VictimFigure> picked;
    {
        OpenQuestion open(form);
        open.Wait();
        picked = form.Picked();
    }
    std::vector<Answer::Piece> pieces;
    pieces.reserve(picked.size());
    for (const VictimFigure& figure : picked) {
        pieces.push_back({figure.Clan, figure.Amoeba});
    }
    NoteAnswer(form, WithPieces(Answer::Kind::Pick, pieces), true);
    return picked;
}

}  // namespace plasmos

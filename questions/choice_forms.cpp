// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/choice_forms.h"

#include "model/genes.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

/// Answers for the options that can be clicked.
std::vector<Answer> AnswersFor(const Table<ChoiceOption, 0, 7>& options, Answer::Kind kind) {
    std::vector<Answer> allowed;
    for (int k = 0; k <= 7; ++k) {
        if (options[k].Visible && options[k].Enabled) {
            allowed.push_back(Numbered(kind, k));
        }
    }
    return allowed;
}

bool IsOffered(const Table<ChoiceOption, 0, 7>& options, int k) {
    return k >= 0 && k <= 7 && options[k].Visible && options[k].Enabled;
}

}  // namespace

AmNumfrm::AmNumfrm(int clan, std::string caption, std::string text, int noAnswer, int closeReply)
    : Question(QuestionKind::Number, clan, std::move(text)), Caption(std::move(caption)), closeReply_(closeReply) {
    for (int k = 0; k <= 7; ++k) {
        amopt[k].Caption = Concat(k);
    }
    game.Reply = noAnswer;
}

std::vector<Answer> AmNumfrm::Allowed() const {
    return AnswersFor(amopt, Answer::Kind::Number);
}

AmNumfrm::~AmNumfrm() {
    game.Reply = 0;
}

void AmNumfrm::Activate(int price) {
    const int most = game.BP[Clan] / price + 1;
    for (int k = 0; k <= 7; ++k) {
        amopt[k].Visible = k <= game.MaxAmoeba;
        amopt[k].Enabled = k <= most;
    }
}

void AmNumfrm::LimitTo(int most) {
    for (int k = 0; k <= 7; ++k) {
        amopt[k].Enabled = k <= most && amopt[k].Enabled;
    }
}

void AmNumfrm::Store(const Answer& answer) {
    const bool closed = answer.What == Answer::Kind::Close;
    if (!closed && (answer.What != Answer::Kind::Number || !IsOffered(amopt, answer.Number))) {
        NoteAnswer(*this, answer, false);
        return;
    }
    chosen_ = game.Reply = closed ? closeReply_ : answer.Number;
}

AmChoicefrm::AmChoicefrm(int clan, std::string caption, std::string text)
    : Question(QuestionKind::Amoeba, clan, std::move(text)), Caption(std::move(caption)) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        amopt[amoeba].Visible = true;
        amopt[amoeba].Caption = game.Amoeba[amoeba][clan].Name.String();
    }
    game.Reply = -1;
}

std::vector<Answer> AmChoicefrm::Allowed() const {
    auto allowed = AnswersFor(amopt, Answer::Kind::Amoeba);
    allowed.push_back(Plain(Answer::Kind::Nobody));
    return allowed;
}

AmChoicefrm::~AmChoicefrm() {
    game.Reply = 0;
}

void AmChoicefrm::Offer(int amoeba) {
    amopt[amoeba].Enabled = true;
}

void AmChoicefrm::Store(const Answer& answer) {
    const bool none = answer.What == Answer::Kind::Nobody || answer.What == Answer::Kind::Close;
    if (!none && (answer.What != Answer::Kind::Amoeba || !IsOffered(amopt, answer.Number))) {
        NoteAnswer(*this, answer, false);
        return;
    }
    chosen_ = game.Reply = none ? 0 : answer.Number;
}

int AskAmoeba(AmChoicefrm& form) {
    OpenQuestion open(form);
    open.Wait();
    const int slot = form.Chosen();
    NoteAnswer(form, slot != 0 ? Numbered(Answer::Kind::Amoeba, slot) : Plain(Answer::Kind::Nobody), true);
    return slot;
}

}  // namespace plasmos

// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/choice_forms.h"

#include "model/genes.h"
#include "questions/ask.h"

namespace plasmos {

AmNumfrm::AmNumfrm(int clan, std::string caption, std::string text, int noAnswer, int closeReply)
    : Question(QuestionKind::Number, clan, std::move(text)),
      Caption(std::move(caption)),
      noAnswer_(noAnswer),
      closeReply_(closeReply) {
    for (int k = 0; k <= 7; ++k) {
        amopt[k].Caption = Concat(k);
    }
    game.Reply = noAnswer_;
}

bool AmNumfrm::Answered() const {
    return game.Reply != noAnswer_;
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

void AmNumfrm::amopt_Click(int k) {
    const bool offered = k >= 0 && k <= 7 && amopt[k].Visible && amopt[k].Enabled;
    if (offered) {
        game.Reply = k;
    } else {
        NoteAnswer(*this, Concat(k), false);
    }
}

void AmNumfrm::Form_Close() {
    game.Reply = closeReply_;
}

AmChoicefrm::AmChoicefrm(int clan, std::string caption, std::string text)
    : Question(QuestionKind::Amoeba, clan, std::move(text)), Caption(std::move(caption)) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        amopt[amoeba].Visible = true;
        amopt[amoeba].Caption = game.Amoeba[amoeba][clan].Name.String();
    }
    game.Reply = -1;
}

bool AmChoicefrm::Answered() const {
    return game.Reply != -1;
}

void AmChoicefrm::Offer(int amoeba) {
    amopt[amoeba].Enabled = true;
}

void AmChoicefrm::amopt_Click(int amoeba) {
    const bool offered = amoeba >= 1 && amoeba <= 7 && amopt[amoeba].Visible && amopt[amoeba].Enabled;
    if (offered) {
        game.Reply = amoeba;
    } else {
        NoteAnswer(*this, Concat(amoeba), false);
    }
}

void AmChoicefrm::amoptb_Click() {
    game.Reply = 0;
}

int AskAmoeba(AmChoicefrm& form) {
    OpenQuestion open(form);
    open.Wait();
    const int answer = game.Reply;
    NoteAnswer(form, Concat(answer), true);
    game.Reply = 0;
    return answer;
}

}  // namespace plasmos

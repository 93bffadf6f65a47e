// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/journal.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "model/dice.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "questions/visit.h"

namespace plasmos {

namespace {

template <class... Pieces>
void Append(std::string& text, const Pieces&... pieces) {
    (AppendPiece(text, pieces), ...);
}

/// "name":[...] with the elements that put() writes for 1 to count.
template <class Put>
void AppendList(std::string& text, std::string_view name, int count, Put&& put) {
    Append(text, ",\"", name, R"(":[)");
    for (int i = 1; i <= count; ++i) {
        Append(text, i == 1 ? "" : ",");
        put(i);
    }
    Append(text, "]");
}

void AppendFoodFields(std::string& text, const FoodForm& form) {
    Append(text, R"(,"mode":)");
    AppendJsonText(text, form.Mode);
    Append(text, R"(,"square":)", form.Square, R"(,"suggested":)", form.SuggestedMenu);
    AppendList(text, "inSquare", game.NumPlayers, [&](int colour) { Append(text, form.fdtxt[colour].InSquare); });
    Append(text, R"(,"legal":)");
    AppendJsonText(text, form.LegalMenuLabel);
    Append(text, R"(,"parasitism":)", form.paroptEnabled ? "true" : "false", R"(,"struggle":)",
           form.sfsoptEnabled ? "true" : "false");
}

void AppendGeneFields(std::string& text, const GeneForm& form) {
    Append(text, R"(,"mode":)");
    AppendJsonText(text, form.ModeName());
    Append(text, R"(,"bp":)", game.BP[form.Clan], R"(,"uvCost":)", form.UVdiff);
    AppendList(text, "ticked", GeneCount, [&](int gene) { Append(text, form.gcheck[gene].Ticked ? 1 : 0); });
    AppendList(text, "enabled", GeneCount, [&](int gene) { Append(text, form.gcheck[gene].Enabled ? 1 : 0); });
}

void AppendAllowed(std::string& text, const AmNumfrm& form) {
    const auto allowed = form.Allowed();
    AppendList(text, "allowed", static_cast<int>(allowed.size()),
               [&](int i) { Append(text, allowed[static_cast<std::size_t>(i - 1)].Number); });
}

void AppendFields(std::string& text, const Question& question) {
    Visit(question, Overloaded{[&](const SquareQuestion& square) {
                                   const auto& offered = square.Offered;
                                   AppendList(text, "offered", static_cast<int>(offered.size()),
                                              [&](int i) { Append(text, offered[static_cast<std::size_t>(i - 1)]); });
                               },
                               [&](const AmNumfrm& form) { AppendAllowed(text, form); },
                               [&](const FoodForm& form) { AppendFoodFields(text, form); },
                               [&](const GeneForm& form) { AppendGeneFields(text, form); }, [](const YesNoQuestion&) {},
                               [](const AmChoicefrm&) {}, [](const VictimForm&) {}, [](const BoxQuestion&) {}});
}

/// What came back, where it is no number.
std::string AnswerText(const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Pick: return PiecesText(answer.Pieces);
        case Answer::Kind::Field: return Concat("field ", answer.Number, " = ", answer.Typed);
        default: return answer.Text();
    }
}

/// What came back, as a journal has it: a number where the answer is one, else a text.
void AppendAnswer(std::string& text, const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Yes: Append(text, ReplyYes); return;
        case Answer::Kind::No: Append(text, ReplyNo); return;
        case Answer::Kind::Nobody: Append(text, 0); return;
        case Answer::Kind::Square:
        case Answer::Kind::Number:
        case Answer::Kind::Amoeba: Append(text, answer.Number); return;
        default: break;
    }
    const std::string words = AnswerText(answer);
    AppendJsonText(text, words);
}

void AppendPiecesOf(std::string& text, int clan) {
    AppendList(text, "amoebas", game.MaxAmoeba, [&](int amoeba) {
        const Piece& piece = game.Amoeba[amoeba][clan];
        Append(text, R"({"name":)");
        AppendJsonText(text, piece.Name);
        Append(text, R"(,"square":)", piece.Square, R"(,"damage":)", piece.Damage, R"(,"spot":)", piece.Slot, "}");
    });
}

void AppendClan(std::string& text, int clan) {
    const Clan& player = game.Players[clan];
    Append(text, R"({"name":)");
    AppendJsonText(text, player.Name);
    Append(text, R"(,"score":)", player.Score, R"(,"bp":)", game.BP[clan], R"(,"mutation":)", player.MutationLevel,
           R"(,"personality":)", player.Personality, R"(,"personalityName":)");
    AppendJsonText(text, player.PersonalityName);
    Append(text, R"(,"computer":)", player.IsComputer ? "true" : "false", R"(,"genes":[)");
    bool first = true;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (game.Genes[gene][clan]) {
            Append(text, first ? "\"" : ",\"", GeneCodes[gene], "\"");
            first = false;
        }
    }
    Append(text, "]");
    AppendPiecesOf(text, clan);
    Append(text, "}");
}

}  // namespace

void AppendJsonText(std::string& text, std::string_view value) {
    bool plain = true;
    for (const char c : value) {
        plain = plain && static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\';
    }
    if (plain) {
        Append(text, "\"", value, "\"");
    } else {
        text += nlohmann::json(value).dump();
    }
}

void AppendState(std::string& text) {
    Append(text, R"({"turn":)", game.Turn, R"(,"uv":)", game.UVLevel, R"(,"drift":)", game.Drift, R"(,"gameOver":)",
           game.GameOver ? "true" : "false");
    AppendList(text, "deck", LastCard + 1, [&](int i) {
        const EnvironmentCard& card = game.EnvDeck[i - 1];
        Append(text, "[", card.UV, ",", card.DriftDirection, "]");
    });
    AppendList(text, "order", game.NumPlayers, [&](int place) { Append(text, game.PlayOrder[place]); });
    AppendList(text, "supply", GeneCount, [&](int gene) { Append(text, game.Catalogue[gene].Supply); });
    AppendList(text, "food", game.NumSquares, [&](int square) {
        Append(text, "[");
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            Append(text, clan == 1 ? "" : ",", game.Food[square][clan]);
        }
        Append(text, "]");
    });
    AppendList(text, "clans", game.NumPlayers, [&](int clan) { AppendClan(text, clan); });
    Append(text, "}");
}

std::string GameLine() {
    std::string text = Concat(R"({"t":"game","replay":)", ReplayText(game.ReplayNo), R"(,"clans":)", game.NumPlayers,
                              R"(,"rows":)", game.NumRows, R"(,"cols":)", game.NumCols, R"(,"blocks":[)");
    const auto separate = [&] { Append(text, text.back() == '[' ? "" : ","); };
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (game.Blocked[square]) {
            separate();
            Append(text, square);
        }
    }
    Append(text, R"(],"difficulty":")", game.Menu.normmen ? "Normal" : "Easy", R"(","victory":)",
           game.Menu.victorymen ? "true" : "false", R"(,"persons":[)");
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (!game.Players[clan].IsComputer) {
            separate();
            Append(text, clan);
        }
    }
    Append(text, "]}\n");
    return text;
}

void Journal::Start() {
    text_.clear();
}

void Journal::OnRoll(int n, int face) {
    Append(text_, R"({"t":"roll","n":)", n, R"(,"r":)", face, "}\n");
}

void Journal::OnBegin(Step step, int clan, int amoeba) {
    Append(text_, R"({"t":"begin","step":")", StepName(step), R"(","turn":)", game.Turn);
    if (clan != 0) {
        Append(text_, R"(,"clan":)", clan);
    }
    if (amoeba != 0) {
        Append(text_, R"(,"amoeba":)", amoeba);
    }
    Append(text_, "}\n");
}

void Journal::OnEnd(Step step, int /*clan*/, int /*amoeba*/) {
    if (step == Step::NewGame) {
        text_.insert(0, GameLine());
    }
    Append(text_, R"({"t":"end","step":")", StepName(step), R"(","state":)");
    AppendState(text_);
    Append(text_, "}\n");
}

void Journal::AppendText(std::string_view kind, std::string_view text) {
    Append(text_, R"({"t":")", kind, R"(","text":)");
    AppendJsonText(text_, text);
    Append(text_, "}\n");
}

void Journal::OnReason(std::string_view sentence) {
    AppendText("why", sentence);
}

void Journal::OnSay(std::string_view line) {
    AppendText("say", line);
}

void Journal::OnBox(std::string_view text) {
    AppendText("box", text);
}

void Journal::OnAsk(const Question& question) {
    Append(text_, R"({"t":"ask","kind":")", QuestionKindName(question.Kind), R"(","clan":)", question.Clan,
           R"(,"text":)");
    AppendJsonText(text_, question.Text);
    AppendFields(text_, question);
    Append(text_, "}\n");
}

void Journal::OnAnswer(const Question& /*question*/, const Answer& answer, bool accepted) {
    Append(text_, R"({"t":"answer","value":)");
    AppendAnswer(text_, answer);
    Append(text_, accepted ? "}\n" : ",\"accepted\":false}\n");
}

void Journal::OnOver() {
    Append(text_, R"({"t":"over","turns":)", std::min(game.Turn, LastTurn), R"(,"winner":)", game.PlayOrder[1]);
    AppendList(text_, "order", game.NumPlayers, [&](int place) { Append(text_, game.PlayOrder[place]); });
    Append(text_, "}\n");
}

}  // namespace plasmos

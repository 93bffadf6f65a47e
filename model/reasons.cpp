// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/reasons.h"

#include "model/genes.h"
#include "model/observer.h"

namespace plasmos {

void TellReason(const std::string& sentence) {
    services.Listener->OnReason(sentence);
}

void AppendPiece(std::string& text, TheClan clan) {
    AppendPiece(text, game.Players[clan.Clan].Name.View());
}

void AppendPiece(std::string& text, ThePiece piece) {
    AppendPiece(text, game.Amoeba[piece.Amoeba][piece.Clan].Name.View());
}

void AppendPiece(std::string& text, TheGene gene) {
    AppendPiece(text, GeneName(gene.Gene));
}

void AppendPiece(std::string& text, const Counted& counted) {
    AppendPiece(text, counted.Number);
    AppendPiece(text, " ");
    AppendPiece(text, counted.What);
    AppendPiece(text, counted.Number == 1 ? "" : "s");
}

void AppendPiece(std::string& text, const Where& part) {
    AppendPiece(text, part.Holds ? part.Text : part.Else);
}

void AppendSeparator(std::string& text, int place, int count) {
    AppendPiece(text, place == 1 ? "" : place == count ? " and " : ", ");
}

}  // namespace plasmos

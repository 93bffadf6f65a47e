// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/gene_form.h"

#include <algorithm>

#include "files/strings.h"
#include "model/bio_points.h"
#include "model/genes.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

constexpr std::int32_t Blue = 0xFF0000;
constexpr std::int32_t Red = 0x0000FF;
constexpr std::size_t MostDigits = 9;

/// Reads BP as they are typed: an optional sign and at most 9 digits, a fraction is cut off.
bool ParseBP(std::string_view text, int& value) {
    text = Trim(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    const auto point = text.find('.');
    const auto whole = text.substr(0, point);
    const auto fraction = point == std::string_view::npos ? std::string_view{} : text.substr(point + 1);
    const auto isDigits = [](std::string_view part) {
        return part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    if (whole.size() + fraction.size() == 0 || whole.size() > MostDigits || !isDigits(whole) || !isDigits(fraction)) {
        return false;
    }
    value = 0;
    for (const char digit : whole) {
        value = value * 10 + (digit - '0');
    }
    value = negative ? -value : value;
    return true;
}

std::string HeldMark(int gene) {
    return Concat("~", gene, "~");
}

}  // namespace

GeneForm::GeneForm(int clan, std::string text) : Question(QuestionKind::Genes, clan, std::move(text)) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Caption = GeneName(gene);
        gcheck[gene].ToolTip = GeneTip(gene);
    }
}

void GeneForm::SetBoxesToHeld() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Ticked = gcheck[gene].Enabled = game.Genes[gene][Clan];
    }
}

void GeneForm::SetUVdiff(int value) {
    UVdiff = value;
    UVdiff_Change();
}

void GeneForm::UVdiff_Change() {
    UVdiffColour = UVdiff <= 0 ? Blue : Red;
}

void GeneForm::PrepareEnvironment() {
    EnvBP = "0";
    BPlabelVisible = false;
    UVdiffVisible = true;
    const int bp = game.BP[Clan];
    EnvBPVisible = ofLabVisible = bp > 0;
    ofLab = bp > 0 ? Concat("of ", bp) : std::string();
    SetBoxesToHeld();
    game.DialogMode = "ENVIRONMENT";
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel);
    game.DiscardedPoints = 0;
    game.DoneFlag = 0;
}

void GeneForm::PrepareNewGenes() {
    game.DialogMode = "NEWGENES";
    BPlabelVisible = true;
    BPlabel = Concat(game.BP[Clan]);
    heldOnEntry_ = "";
    for (int gene = 1; gene <= GeneCount; ++gene) {
        gcheck[gene].Ticked = game.Genes[gene][Clan];
        gcheck[gene].Enabled = CanBuyGene(Clan, gene);
        if (gcheck[gene].Ticked) {
            heldOnEntry_ += HeldMark(gene);
        }
    }
    game.DoneFlag = 0;
}

void GeneForm::gcheck_Click(int gene) {
    const bool offered = gene >= 1 && gene <= GeneCount && gcheck[gene].Enabled && game.DoneFlag == 0;
    if (!offered) {
        NoteAnswer(*this, Concat("tick ", gene), false);
        return;
    }
    gcheck[gene].Ticked = !gcheck[gene].Ticked;
    NoteAnswer(*this, Concat(gcheck[gene].Ticked ? "tick " : "untick ", gene), true);
    if (game.DialogMode == "ENVIRONMENT") {
        AdaptClick(gene);
    } else if (game.DialogMode == "NEWGENES") {
        BuyClick(gene);
    }
}

void GeneForm::AdaptClick(int gene) {
    const int points = gene == GeneId("ray") ? RayCredit : game.Catalogue[gene].MutationPoints;
    game.DiscardedPoints += gcheck[gene].Ticked ? -points : points;
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel - game.DiscardedPoints);
    resetbVisible = true;
}

void GeneForm::BuyClick(int gene) {
    if (gcheck[gene].Ticked) {
        BuyGene(gene);
    } else {
        DiscardGene(gene);
        GainBP(Clan, game.Catalogue[gene].Cost);
    }
    BPlabel = Concat(game.BP[Clan]);
    for (int other = 1; other <= GeneCount; ++other) {
        const bool held = game.Genes[other][Clan];
        const bool bought = held && heldOnEntry_.View().find(HeldMark(other)) == std::string_view::npos;
        gcheck[other].Ticked = held;
        gcheck[other].Enabled = bought || CanBuyGene(Clan, other);
    }
}

void GeneForm::EnvBP_Change(std::string text) {
    if (game.DialogMode != "ENVIRONMENT" || !EnvBPVisible) {
        return;
    }
    int value = 0;
    if (ParseBP(text, value) && value <= game.BP[Clan]) {
        EnvBP = std::move(text);
        NoteAnswer(*this, Concat("pay ", value), true);
    } else {
        EnvBP = "0";
        value = 0;
        NoteAnswer(*this, "pay 0", false);
    }
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel - value - game.DiscardedPoints);
    resetbVisible = true;
}

void GeneForm::resetb_Click() {
    if (game.DialogMode != "ENVIRONMENT") {
        return;
    }
    EnvBP = "0";
    SetBoxesToHeld();
    game.DiscardedPoints = 0;
    SetUVdiff(game.Players[Clan].MutationLevel - game.UVLevel);
    resetbVisible = false;
}

void GeneForm::doneb_Click() {
    if (game.DoneFlag != 0) {
        return;
    }
    if (game.DialogMode == "ENVIRONMENT") {
        if (UVdiff > 0) {
            NoteAnswer(*this, "done", false);
            RefusalPending = true;
            return;
        }
        FinishAdapting();
    }
    NoteAnswer(*this, "done", true);
    game.DoneFlag = 1;
}

void GeneForm::RefuseDone() {
    RefusalPending = false;
    ShowBox(Clan,
            "You must make up the difference between the current environmental UV-level "
            "and the sum mutation-point value of your amoebas' genes by discarding genes "
            "and/or spending BP until the difference (\"UV cost\") is 0");
    resetb_Click();
}

int GeneForm::TypedBP() const {
    int value = 0;
    return ParseBP(EnvBP, value) ? value : 0;
}

void GeneForm::FinishAdapting() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (game.Genes[gene][Clan] && !gcheck[gene].Ticked) {
            DiscardGene(gene);
        }
    }
    const int paid = std::min(TypedBP(), game.BP[Clan]);
    if (paid >= 1) {
        PayBP(Clan, paid);
    }
    UVdiffVisible = EnvBPVisible = ofLabVisible = resetbVisible = false;
    BPlabelVisible = true;
}

}  // namespace plasmos

// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the handbook says in figures and names is what the game has, and its links lead somewhere.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "flow/personalities.h"
#include "flow/scoring.h"
#include "model/gene_texts.h"
#include "rules/menus.h"
#include "sim/options.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {

namespace {

namespace fs = std::filesystem;

const fs::path& Folder() {
    static const fs::path folder = fs::path(PLASMOS_SOURCES) / "docs" / "handbook";
    return folder;
}

std::string Page(const std::string& name) {
    std::ifstream file(Folder() / name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> PageNames() {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(Folder())) {
        if (entry.path().extension() == ".md") {
            names.insert(entry.path().filename().string());
        }
    }
    return names;
}

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

using Row = std::vector<std::string>;

/// The rows of the table whose head begins with a word, without head and line.
std::vector<Row> Table(const std::string& page, const std::string& head) {
    std::vector<Row> rows;
    std::istringstream lines(page);
    bool inside = false;
    for (std::string line; std::getline(lines, line);) {
        inside = line.starts_with("| " + head + " |") || (inside && line.starts_with("|"));
        if (!inside || line.starts_with("|---")) {
            continue;
        }
        Row row;
        std::istringstream cells(line.substr(1));
        for (std::string cell; std::getline(cells, cell, '|');) {
            row.push_back(Trimmed(cell));
        }
        rows.push_back(row);
    }
    EXPECT_GT(rows.size(), 1u) << head;
    rows.erase(rows.begin());
    return rows;
}

/// "Tentacle" is called "tentacle", as web pages call headings.
std::string NameOfHeading(const std::string& words) {
    std::string name;
    for (const char letter : words) {
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '-') {
            name += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        } else if (letter == ' ') {
            name += '-';
        }
    }
    return name;
}

std::set<std::string> Headings(const std::string& page) {
    std::set<std::string> names;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("#")) {
            names.insert(NameOfHeading(Trimmed(line.substr(line.find_first_not_of('#')))));
        }
    }
    return names;
}

std::vector<std::string> Matches(const std::string& page, const char* pattern) {
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator at(page.begin(), page.end(), expression); at != std::sregex_iterator(); ++at) {
        found.push_back((*at)[1].str());
    }
    return found;
}

std::string NameOfGene(std::string_view code) {
    return code.empty() ? "" : std::string(GeneName(GeneNumber(code)));
}

/// A gene's row as the catalogue has it.
Row RowOf(const GeneRow& gene) {
    const std::string name(gene.Name);
    std::string points = std::to_string(gene.PointsFew);
    if (gene.PointsMany != gene.PointsFew) {
        points += " (" + std::to_string(gene.PointsMany) + ")";
    }
    std::ostringstream copies;
    copies << gene.Supply3 << ", " << gene.Supply4 << ", " << gene.Supply56;
    std::string needs = NameOfGene(gene.Upgrades);
    if (!gene.OrElse.empty()) {
        needs += " or " + NameOfGene(gene.OrElse);
    }
    return {"[" + name + "](#" + NameOfHeading(name) + ")",
            std::string(gene.Code),
            std::to_string(gene.Cost),
            points,
            copies.str(),
            needs};
}

class Handbook : public GameTest {};

}  // namespace

TEST_F(Handbook, TheGenesAreThoseOfTheCatalogue) {
    const std::string page = Page("genes.md");
    std::vector<Row> expected;
    for (const GeneRow& gene : GeneRows) {
        expected.push_back(RowOf(gene));
        EXPECT_TRUE(Headings(page).contains(NameOfHeading(std::string(gene.Name)))) << gene.Name;
    }
    EXPECT_EQ(Table(page, "Gene"), expected);
}

// Six clans of the computer get all six cards.
TEST_F(Handbook, ThePersonalitiesAreThoseOfTheDeck) {
    NewPosition(6);
    game.Menu.normmen = false;
    DealPersonalities();
    std::map<std::string, int> cards;
    std::map<std::string, std::string> favourites;
    for (int clan = 1; clan <= 6; ++clan) {
        const std::string name = game.Players[clan].PersonalityName.String();
        std::string genes;
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if ((game.Players[clan].Personality & (1 << (gene - 1))) != 0) {
                genes += (genes.empty() ? "" : ", ") + std::string(GeneName(gene));
            }
        }
        ++cards[name];
        favourites[name] = genes;
    }
    std::set<Row> expected;
    for (const auto& [name, count] : cards) {
        expected.insert({name, std::to_string(count), favourites[name]});
    }
    const auto rows = Table(Page("clans.md"), "Personality");
    EXPECT_EQ(std::set<Row>(rows.begin(), rows.end()), expected);
    EXPECT_EQ(rows.size(), expected.size());
}

TEST_F(Handbook, TheMenusAreTheLegalOnes) {
    const auto added = [](int clans, std::vector<std::string_view> genes) {
        NewPosition(clans);
        const auto before = LegalMenusOf(1);
        for (const auto gene : genes) {
            Give(1, gene);
        }
        std::set<std::string> menus;
        for (const int menu : LegalMenusOf(1)) {
            if (genes.empty() || std::find(before.begin(), before.end(), menu) == before.end()) {
                menus.insert(std::to_string(menu));
            }
        }
        return menus;
    };
    const auto inCell = [](const std::string& cell) {
        const auto words = Matches(cell, "([0-9]+)");
        return std::set<std::string>(words.begin(), words.end());
    };
    const auto rows = Table(Page("meals.md"), "Clans");
    ASSERT_EQ(rows.size(), 4u);
    for (const Row& row : rows) {
        const int clans = std::stoi(row.at(0));
        EXPECT_EQ(inCell(row.at(1)), added(clans, {})) << clans;
        EXPECT_EQ(inCell(row.at(2)), added(clans, {"sub"})) << clans;
        EXPECT_EQ(inCell(row.at(3)), added(clans, {"fru"})) << clans;
    }
}

TEST_F(Handbook, TheScoresAreThoseOfTheGame) {
    const auto cells = [](int clans, bool genes) {
        NewPosition(clans);
        FillScoreTables();
        Row points;
        for (int count = 0; count <= (genes ? 7 : game.MaxAmoeba); ++count) {
            points.push_back(std::to_string(genes ? game.ScoreByGenes[count] : game.ScoreByAmoebaCount[count]));
        }
        points.resize(8);
        return points;
    };
    auto rows = Table(Page("phases.md"), "Amoebas or genes");
    for (Row& row : rows) {
        row.erase(row.begin());
    }
    EXPECT_EQ(rows, (std::vector<Row>{cells(4, false), cells(6, false), cells(4, true)}));
    EXPECT_EQ(cells(3, false), cells(4, false));
    EXPECT_EQ(cells(5, false), cells(6, false));
}

TEST_F(Handbook, TheOptionsAreThoseOfTheSimulator) {
    std::string help;
    const char* const arguments[] = {"plasmos-sim", "--help"};
    try {
        ParseOptions(2, arguments);
    } catch (const HelpWanted& wanted) {
        help = wanted.Text;
    }
    const auto told = Matches(Page("simulator.md"), "(--[a-z]+)");
    EXPECT_GT(told.size(), 15u);
    for (const std::string& option : told) {
        EXPECT_TRUE(help.find(option + " ") != std::string::npos || help.find(option + ":") != std::string::npos ||
                    help.find(option + "\n") != std::string::npos)
            << option;
    }
}

TEST_F(Handbook, EveryPageIsInTheContents) {
    std::set<std::string> listed = {"README.md"};
    for (const std::string& name : Matches(Page("README.md"), R"(\n\d+\. \[[^\]]+\]\(([a-z-]+\.md)\))")) {
        EXPECT_TRUE(listed.insert(name).second) << name << " is listed twice";
    }
    EXPECT_EQ(listed, PageNames());
}

TEST_F(Handbook, EveryLinkLeadsToAPageAndAHeading) {
    int links = 0;
    for (const std::string& name : PageNames()) {
        for (const std::string& link : Matches(Page(name), R"([^!]\[[^\]]+\]\(([^)]+)\))")) {
            const auto hash = link.find('#');
            const std::string page = hash == 0 ? name : link.substr(0, hash);
            EXPECT_TRUE(PageNames().contains(page)) << name << ": " << link;
            if (hash != std::string::npos) {
                EXPECT_TRUE(Headings(Page(page)).contains(link.substr(hash + 1))) << name << ": " << link;
            }
            ++links;
        }
    }
    EXPECT_GT(links, 50);
}

TEST_F(Handbook, EveryPictureIsThereAndIsShown) {
    std::set<std::string> shown;
    for (const std::string& name : PageNames()) {
        for (const std::string& picture : Matches(Page(name), R"(!\[[^\]]+\]\(([^)]+)\))")) {
            EXPECT_TRUE(fs::is_regular_file(Folder() / picture)) << name << ": " << picture;
            shown.insert(picture);
        }
    }
    std::uintmax_t bytes = 0;
    for (const auto& entry : fs::directory_iterator(Folder() / "pictures")) {
        EXPECT_TRUE(shown.contains("pictures/" + entry.path().filename().string())) << entry.path();
        bytes += entry.file_size();
    }
    EXPECT_LT(bytes, 3u << 20) << "the program has them all with it";
}

}  // namespace plasmos::testing

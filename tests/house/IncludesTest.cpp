// The plan of the house: which room may include which. Whoever adds a room adds its row.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Room {
    std::string_view folder;                ///< below src
    std::vector<std::string_view> includes; ///< rooms, or folders of rooms, that it may include beside itself
    bool toolkit = false;                   ///< whether it may include Qt
};

const std::vector<Room> kRooms = {
    {"lib/text", {}},
    {"lib/files", {"lib/text"}},
    {"lib/calendar", {"lib/text", "lib/files"}},
    {"lib/expression", {"lib/text", "lib/files", "lib/calendar"}},
    {"lib/platform", {"lib/text", "lib/files"}},
    {"lib/config", {"lib/text", "lib/files", "lib/platform"}},
    {"model/record", {"lib"}},
    {"model/rows", {"model/record", "lib"}},
    {"model/optics", {"model/rows", "model/record", "lib"}},
    {"model/analysis", {"model/optics", "model/rows", "model/record", "lib"}},
    {"model/tools", {"lib"}},
    {"raytrace", {"model", "lib"}},
    {"drawing", {"raytrace", "model", "lib"}},
    {"drawing/paper", {"drawing", "raytrace", "model", "lib"}},
    {"document", {"raytrace", "model", "lib"}},
    {"report", {"drawing", "raytrace", "model", "lib"}},
    {"painting", {"drawing", "lib"}, true},
    {"views", {"painting", "document", "drawing", "raytrace", "model", "lib"}, true},
    {"pages/sheet", {"views", "painting", "document", "drawing", "model", "lib"}, true},
    {"pages/telescope", {"pages/sheet", "views", "painting", "document", "drawing", "model", "lib"}, true},
    {"pages/tube", {"pages/sheet", "views", "painting", "document", "drawing", "model", "lib"}, true},
    {"pages/optics", {"pages/sheet", "views", "painting", "document", "drawing", "model", "lib"}, true},
    {"pages/tools", {"pages/sheet", "views", "painting", "document", "drawing", "model", "lib"}, true},
    {"pages/dialogs", {"pages/sheet", "views", "painting", "document", "drawing", "model", "lib"}, true},
    {"windows",
     {"pages/sheet", "views", "painting", "document", "drawing", "raytrace", "model", "lib"},
     true},
    {"app",
     {"windows", "pages", "views", "painting", "report", "document", "drawing", "raytrace", "model", "lib"},
     true},
    {"cli/words", {"lib"}},
    {"cli", {"cli/words", "report", "painting", "document", "drawing", "raytrace", "model", "lib"}, true},
    {"programs", {"app", "cli", "lib"}, true},
};

const Room* FindRoom(std::string_view folder)
{
    const auto found = std::ranges::find(kRooms, folder, &Room::folder);
    return found == kRooms.end() ? nullptr : &*found;
}

bool IsWithin(std::string_view folder, std::string_view above)
{
    return folder == above || (folder.starts_with(above) && folder[above.size()] == '/');
}

struct Include {
    std::string target; ///< as it is written
    bool own = false;   ///< in quotes
};

std::string_view WithoutBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

std::vector<Include> IncludesOf(const fs::path& file)
{
    constexpr std::string_view kWord = "include";
    std::vector<Include> includes;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        std::string_view rest = WithoutBlanks(line);
        if (!rest.starts_with('#') || !(rest = WithoutBlanks(rest.substr(1))).starts_with(kWord)) {
            continue;
        }
        rest = WithoutBlanks(rest.substr(kWord.size()));
        if (rest.starts_with('"') || rest.starts_with('<')) {
            const bool own = rest.front() == '"';
            includes.push_back({std::string(rest.substr(1, rest.find(own ? '"' : '>', 1) - 1)), own});
        }
    }
    return includes;
}

/// All sources below src, as paths from there.
std::vector<std::string> Sources()
{
    const fs::path top = fs::path(ORREVA_SOURCE_DIR) / "src";
    std::vector<std::string> sources;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top)) {
        const fs::path extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp") {
            sources.push_back(fs::relative(entry.path(), top).generic_string());
        }
    }
    std::ranges::sort(sources);
    return sources;
}

std::string FolderOf(const std::string& source) { return fs::path(source).parent_path().generic_string(); }

/// Header and source of one name stand for one another.
std::string UnitOf(const std::string& source)
{
    return fs::path(source).replace_extension().generic_string();
}

fs::path PathOf(const std::string& source) { return fs::path(ORREVA_SOURCE_DIR) / "src" / source; }

using Graph = std::map<std::string, std::set<std::string>>;

/// A way from `unit` back to a unit that is already on it, empty if there is none.
std::vector<std::string> CircleFrom(const std::string& unit, const Graph& graph, std::set<std::string>& done,
                                    std::vector<std::string>& way)
{
    const auto before = std::ranges::find(way, unit);
    if (before != way.end()) {
        return {before, way.end()};
    }
    if (!done.insert(unit).second) {
        return {};
    }
    way.push_back(unit);
    for (const std::string& next : graph.at(unit)) {
        if (auto circle = CircleFrom(next, graph, done, way); !circle.empty()) {
            return circle;
        }
    }
    way.pop_back();
    return {};
}

std::vector<std::string> Circle(const Graph& graph)
{
    std::set<std::string> done;
    std::vector<std::string> way;
    for (const auto& [unit, targets] : graph) {
        if (auto circle = CircleFrom(unit, graph, done, way); !circle.empty()) {
            return circle;
        }
    }
    return {};
}

Graph GraphBy(std::string (*key)(const std::string&))
{
    const std::vector<std::string> sources = Sources();
    Graph graph;
    for (const std::string& source : sources) {
        std::set<std::string>& targets = graph[key(source)];
        for (const Include& include : IncludesOf(PathOf(source))) {
            if (std::ranges::binary_search(sources, include.target) && key(include.target) != key(source)) {
                targets.insert(key(include.target));
            }
        }
    }
    return graph;
}

TEST(House, EverySourceStandsInARoom)
{
    std::map<std::string, int> counts;
    for (const std::string& source : Sources()) {
        ++counts[FolderOf(source)];
    }
    for (const auto& [folder, count] : counts) {
        EXPECT_NE(nullptr, FindRoom(folder)) << folder;
        EXPECT_GT(count, 1) << folder << " is a room of one file";
    }
    EXPECT_EQ(kRooms.size(), counts.size());
}

TEST(House, IncludesPointDown)
{
    int checked = 0;
    for (const std::string& source : Sources()) {
        const Room* const room = FindRoom(FolderOf(source));
        ASSERT_NE(nullptr, room) << source;
        for (const Include& include : IncludesOf(PathOf(source))) {
            if (!include.own) {
                EXPECT_TRUE(room->toolkit || !include.target.starts_with('Q'))
                    << source << " " << include.target;
                continue;
            }
            const std::string folder = FolderOf(include.target);
            if (folder.empty()) {
                EXPECT_TRUE(include.target == "Version.h" ||
                            (room->toolkit &&
                             (include.target.starts_with("ui_") || include.target.starts_with("moc_"))))
                    << source << " " << include.target;
                continue;
            }
            ++checked;
            const bool isAllowed =
                folder == room->folder ||
                std::ranges::any_of(room->includes, [&](auto above) { return IsWithin(folder, above); });
            EXPECT_TRUE(isAllowed) << source << " includes " << include.target;
            EXPECT_TRUE(fs::exists(PathOf(include.target))) << source << " includes " << include.target;
        }
    }
    EXPECT_GT(checked, 500);
}

TEST(House, NoCircleOfFilesCloses) { EXPECT_EQ(std::vector<std::string>{}, Circle(GraphBy(UnitOf))); }

TEST(House, NoCircleOfRoomsCloses) { EXPECT_EQ(std::vector<std::string>{}, Circle(GraphBy(FolderOf))); }

TEST(House, ThePageOfTheHouseNamesEachRoomInAnOrderThatIncludesFollow)
{
    constexpr std::string_view kRow = "| `";
    std::vector<std::string> named;
    std::ifstream page(fs::path(ORREVA_SOURCE_DIR) / "docs/architecture.md");
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with(kRow)) {
            named.push_back(line.substr(kRow.size(), line.find('`', kRow.size()) - kRow.size()));
        }
    }
    EXPECT_EQ(kRooms.size(), named.size());
    const Graph graph = GraphBy(FolderOf);
    for (const auto& [room, targets] : graph) {
        const auto row = std::ranges::find(named, room);
        ASSERT_NE(row, named.end()) << room;
        for (const std::string& target : targets) {
            EXPECT_LT(std::ranges::find(named, target), row) << room << " includes " << target;
        }
    }
}

TEST(House, ACircleIsFound)
{
    const Graph graph{{"a", {"b"}}, {"b", {"c", "d"}}, {"c", {}}, {"d", {"b"}}};
    EXPECT_EQ((std::vector<std::string>{"b", "d"}), Circle(graph));
}

} // namespace

#include "output/routine_tables.h"

#include <algorithm>
#include <map>
#include <utility>

#include "output/words.h"

namespace gen {
namespace {

constexpr std::size_t lineLength = 120;

std::string head(const std::string& what) {
    return "/* Written by `generate write`; do not edit. The rule: generator/output/routine_tables.cpp.\n   " + what +
           " */\n";
}

// The family of "zulgBatchWHT" is "WHT", and so is that of "zulgBatchWHTGetBufferSize", which transforms nothing.
bool isTransform(const Export& entry) { return entry.name.find("GetBufferSize") == std::string::npos; }

std::string realType(const Export& entry) { return entry.elementType.starts_with("32") ? "float" : "double"; }

// What the headers call the type of the elements: "Zulg32fc".
std::string elementType(const Export& entry) { return "Zulg" + entry.elementType; }

// Words with commas between them, as many to a line as it holds.
std::string filled(const std::vector<std::string>& words, const std::string& indent) {
    std::string text, line;
    for (const std::string& word : words) {
        if (!line.empty() && line.size() + word.size() + 2 > lineLength) {
            text += line + "\n";
            line.clear();
        }
        line += (line.empty() ? indent : " ") + word + ",";
    }
    return text + line + "\n";
}

// The routines of one family and element type.
struct Table {
    const Export* any = nullptr;  // takes the length or the order as an argument
    std::map<int, const Export*> byLengthOrOrder;
};

using Key = std::pair<std::string, std::string>;  // family and type of the reals

std::map<Key, Table> tablesOf(const std::vector<Export>& exports) {
    std::map<Key, Table> tables;
    for (const Export& entry : exports) {
        if (!isTransform(entry) || entry.family == "DCT4") continue;
        Table& table = tables[{entry.family, realType(entry)}];
        if (entry.length || entry.order) {
            table.byLengthOrOrder[entry.length ? *entry.length : *entry.order] = &entry;
        } else {
            table.any = &entry;
        }
    }
    return tables;
}

}  // namespace

std::string emitRoutineTables(const std::vector<Export>& exports) {
    const std::map<Key, Table> tables = tablesOf(exports);
    std::vector<std::string> families;
    for (const auto& [key, table] : tables) {
        if (families.empty() || families.back() != key.first) families.push_back(key.first);
    }
    std::string text = head(
        "The routines of the library by family, type of the reals, and length or order. Included by zulgenpx.hpp.");
    text += "enum class family {\n" + filled(families, "    ") + "};\n";
    for (const auto& [key, table] : tables) {
        const bool hasOrders = key.first == "WHT";
        std::vector<std::string> names;
        for (const auto& [size, entry] : table.byLengthOrOrder) names.push_back(entry->name);
        text += "\ntemplate <>\nstruct routines<family::" + key.first + ", " + key.second + "> {\n" +
                "    static constexpr int first = " + std::to_string(table.byLengthOrOrder.begin()->first) + ";\n" +
                "    static constexpr auto any = " + table.any->name + ";\n" + "    static constexpr " +
                (hasOrders ? "wht_routine" : "routine") + "<" + elementType(*table.any) + "> each[] = {\n" +
                filled(names, "        ") + "    };\n};\n";
    }
    return text;
}

std::string emitBatchRoutineTables(const std::vector<Export>& exports) {
    std::string text =
        head("The routines of the batch library by family and type of the reals. Included by zulgenpx_batch.hpp.");
    for (const Export& entry : exports) {
        if (!isTransform(entry)) continue;
        const bool isSingle = entry.name.starts_with("zulgBatchSingle"), isDct4 = entry.family == "DCT4";
        text += "template <>\ninline constexpr auto " +
                (isDct4     ? "dct4_routine<" + realType(entry)
                 : isSingle ? "routine_in_single<family::" + entry.family
                            : "routine<family::" + entry.family + ", " + realType(entry)) +
                "> = " + entry.name + ";\n";
    }
    return text;
}

}  // namespace gen

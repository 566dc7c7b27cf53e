// JSON, by the library nlohmann-json. Members keep the order in which they are added.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace spectrum {

using Json = nlohmann::ordered_json;

// On one line. Names of files that are no UTF-8 are made so.
inline std::string jsonLine(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

// For people and programs.
inline std::string jsonText(const Json& value) {
    return value.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace spectrum

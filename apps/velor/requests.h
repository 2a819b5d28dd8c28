// What the user asks for, as the command line said it.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "printer.h"

namespace velor::app {

struct SubstanceRequest {
    std::string substance;
};

struct PropertyRequest {
    int property = 0;  // 1..10
    std::string substances;
    std::vector<double> temperatures;
    bool clamp = false;  // temperatures into the validity ranges
};

struct TourRequest {
    std::string substance;
    double temperature = 0;
};

struct Request {
    std::optional<std::string> database;  // instead of the one that VELOR.CFG names
    OutputForm form = OutputForm::Text;
    std::variant<SubstanceRequest, PropertyRequest, TourRequest> question;
};

}  // namespace velor::app

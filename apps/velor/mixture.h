// A mixture as the command handles it: substances of the database and their fractions.
#pragma once

#include <string>
#include <vector>

#include "component_data.h"
#include "database.h"
#include "requests.h"
#include "velor/smes.h"

namespace velor::app {

struct Mixture {
    const Database& database;
    SubstanceList substances;
    std::vector<double> moleFractions;
    bool clamp = false;                          // temperatures into the validity ranges
    std::vector<ComponentData> components = {};  // where they are not those of the database
};

// Failure(WrongUse): a wrong number of fractions, or a sum that is not 1 and not to be normalised.
Mixture findMixture(const CompositionRequest& request, const Database& database);

// Keeps what the library says; passes it on where there is somebody to answer.
class MessageLog : public RecordingUserInterface {
  public:
    explicit MessageLog(UserInterface* listener = nullptr) : listener_(listener) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;

    // Whether the bubble and the dew point were given up.
    bool bubblePointDiverged() const;
    bool dewPointDiverged() const;
    // The first message on one line; empty where there was none.
    std::string firstText() const;

  private:
    bool has(std::string_view text) const;

    UserInterface* listener_;
};

// A mixture object of the library, loaded and ready for one point. Bubble and dew points are given up after 50 steps
// only while messages are on and their budget is not spent: it is never shared by two points.
class MixtureObject {
  public:
    MessageLog log;
    Smes smes;
    Variant X;

    explicit MixtureObject(const Mixture& mixture, UserInterface* listener = nullptr);
};

}  // namespace velor::app

// A mixture put into the library, what the library says of it at one point, and how a report introduces it.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "mixtures/mixtures.h"

namespace velor::app {

// Failure(WrongUse): a wrong number of fractions, or a sum that is not 1 and not to be normalised.
Mixture findMixture(const CompositionRequest& request, const Database& database, bool clamp = false);

// The answer to vlastnost for a mixture that is known already.
Report propertyReport(const MixturePropertyRequest& request, const Mixture& mixture);

// Keeps what the library says; passes it on where there is somebody to answer.
class MessageLog : public RecordingUserInterface {
  public:
    explicit MessageLog(UserInterface* listener = nullptr) : listener_(listener) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;

    // The first message on one line; empty where there was none.
    std::string firstText() const;

  private:
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

struct Point {
    double T = 0;  // K; not read by a property that needs none
    double P = 0;  // Pa; likewise
};

struct MixtureValue {
    PropertyValue result;
    std::string reason;  // why there is none, a Czech sentence
};

// The property at each of the points, by the library's table.
std::vector<MixtureValue> mixtureValues(const Mixture& mixture, const MixtureProperty& property,
                                        std::span<const Point> points);
MixtureValue mixtureValue(const Mixture& mixture, const MixtureProperty& property, const Point& point);

// The worst of the pure values that the property is mixed of at T kelvin, see worstPureValue of verdict.h. The object
// holds the substances.
MixtureValue worstPureValue(const Mixture& mixture, MixtureObject& object, const MixtureProperty& property, double T);

// What of the substances was changed for this mixture alone, in the database and now; no section where nothing was.
std::vector<Section> changeSections(const Mixture& mixture);

// Bubble and dew point of the mixture at P pascals.
struct BoilingRange {
    MixtureValue bubble, dew;
};
BoilingRange boilingRange(const Mixture& mixture, double P);

// One row for each substance: mole and mass fraction.
Section compositionSection(const Mixture& mixture);

// Bubble and dew point at P pascals.
Section boilingSection(const BoilingRange& range, double P);

// The signs behind values, and why some are missing.
class MixtureNotes {
  public:
    Cell cell(const MixtureValue& value);
    std::vector<std::string> notes() const;

  private:
    StandingNotes signs_;
    std::vector<std::string> reasons_;  // each once, in the order met
};

}  // namespace velor::app

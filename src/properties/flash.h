// The single-stage flash of a feed, isothermal or adiabatic.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "object/state.h"
#include "rules/flash.h"

namespace velor {

// In two steps, because a user is told the boiling range before the temperature is asked for; see Smes::FLASH.
class Flash {
  public:
    // Finds the boiling range. The feed is normalised, one element a component; P in Pa.
    Flash(State& state, bool adiabatic, double P, std::vector<double> feed);

    // Flashes the feed at T0 kelvin, of an adiabatic flash its own temperature.
    void run(double T0);

    const FlashRecord& found() const { return found_; }
    FlashRecord takeFound() { return std::move(found_); }
    std::string takeReport() { return std::move(report_); }

  private:
    void finishTrivially(FlashOutcome outcome, double V, const char* text);
    void iterate(double T0);
    FlashSolution solve(double T0);
    Equilibrium equilibrium(double T);
    void gatherEquilibrium(double T);
    double vapourEnthalpy(double T, const std::vector<double>& y);
    void appendResults(double T0);

    State& state_;
    bool adiabatic_;
    double P_;
    std::vector<double> slopes_;  // dK/dT, where the temperature is sought
    bool messagesShown_ = false;  // by the last evaluation of the K-values
    FlashRecord found_;
    std::string report_;
};

}  // namespace velor

// FFce of one substance through the public interface.
#include "comparison.h"
#include "floor_equation.h"
#include "mixture.h"

namespace velor::bench {

void addPureValues() {
    const auto benzene = mixtureOf(1);
    for (const auto& [name, property] : {std::pair{"FFce vapour pressure", 9}, std::pair{"FFce liquid density", 4}})
        compare(
            name, Goal::ratio(1.5), evenly(290.0, 450.0),
            [benzene, k = property](double T) { return benzene->smes.FFce(T, 1, k).toDouble(); },
            [equation = FloorEquation(benzene->records[0].Korelace[static_cast<std::size_t>(property - 1)])](double T) {
                return equation(T);
            });
}

}  // namespace velor::bench

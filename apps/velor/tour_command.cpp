#include "commands.h"
#include "correlation_view.h"
#include "substance_finder.h"
#include "substance_view.h"

namespace velor::app {

Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface) {
    const Substance& substance = findSubstance(database.substances, request.substance);
    Smes smes(userInterface);
    loadInto(smes, database, {&substance, 1});
    return {
        {identitySection(substance), constantsSection(smes, 1), valuesSection(smes, request.temperature, substance, 1)},
        {}};
}

}  // namespace velor::app

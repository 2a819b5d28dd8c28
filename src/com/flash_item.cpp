#include "com/flash_item.h"

#include "runtime/checked.h"
#include "runtime/text.h"

namespace velor::com {

Variant flashItem(const Smes& smes, const std::string& name) {
    const FlashRecord& flash = smes.lastFlash();
    const std::pair<const char*, Variant> numbers[] = {
        {"outcome", static_cast<int>(flash.outcome)},
        {"passes", flash.passes},
        {"vapourFraction", flash.vapourFraction},
        {"temperature", flash.temperature},
        {"bubblePoint", flash.bubblePoint},
        {"dewPoint", flash.dewPoint},
        {"materialResidual", flash.materialResidual},
        {"energyResidual", flash.energyResidual},
        {"feed", Numbers(flash.feed)},
        {"liquid", Numbers(flash.liquid)},
        {"vapour", Numbers(flash.vapour)},
        {"equilibrium", Numbers(flash.equilibrium)},
    };
    for (const auto& [item, value] : numbers)
        if (equalIgnoringCase(name, item)) return value;
    checked::raise(RunTimeError::kInvalidCall);
}

}  // namespace velor::com

#include "properties/standing.h"

namespace velor {

std::string_view standingWord(Standing standing) {
    switch (standing) {
        case Standing::InRange:
            return "v rozsahu";
        case Standing::Extrapolated:
            return "extrapolováno";
        case Standing::AtBound:
            return "na mezi";
        case Standing::BelowCritical:
            return "0.98 Tkr";
        case Standing::NotGiven:
            return "nedáno";
        case Standing::BeyondReference:
            return "bez hodnoty";
        case Standing::Diverged:
            return "nekonverguje";
        case Standing::Failed:
            break;
    }
    return "chyba";
}

std::string_view standingMark(Standing standing) {
    switch (standing) {
        case Standing::Extrapolated:
            return "*";
        case Standing::AtBound:
            return "=";
        case Standing::BelowCritical:
            return "k";
        case Standing::NotGiven:
            return "n";
        case Standing::BeyondReference:
            return "r";
        case Standing::Diverged:
            return "d";
        case Standing::Failed:
            return "!";
        case Standing::InRange:
            break;
    }
    return "";
}

std::string_view standingNote(Standing standing) {
    switch (standing) {
        case Standing::Extrapolated:
            return "Teplota je mimo rozsah platnosti korelace, hodnota je extrapolovaná.";
        case Standing::AtBound:
            return "Teplota je mimo rozsah platnosti korelace, hodnota platí pro jeho nejbližší mez.";
        case Standing::BelowCritical:
            return "Teplota je nad kritickou, hodnota je vypočtena při 0.98 Tkr.";
        case Standing::NotGiven:
            return "Vlastnost není pro látku v bázi dána.";
        case Standing::BeyondReference:
            return "Rovnice nemá při této teplotě hodnotu (nad vztažnou teplotou).";
        case Standing::Diverged:
            return "Iterace nekonverguje.";
        case Standing::Failed:
            return "Při výpočtu nastala chyba, rovnice nemá při této teplotě hodnotu.";
        case Standing::InRange:
            break;
    }
    return "";
}

}  // namespace velor

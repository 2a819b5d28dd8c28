// The six forms of an object.
#pragma once

#include <memory>

#include "object/state.h"
#include "velor/component_forms.h"
#include "velor/forms.h"

namespace velor {

// Created with the object, and released in the order of their creation.
struct Forms final : Dialogs {
    // Shared, because a host may renew it while it is shown.
    std::shared_ptr<F_Sezn> list = std::make_shared<F_Sezn>();
    std::unique_ptr<F_Seznam> components = std::make_unique<F_Seznam>();
    std::unique_ptr<F_Sloz> composition = std::make_unique<F_Sloz>();
    std::unique_ptr<frmLatka> display = std::make_unique<frmLatka>();
    std::unique_ptr<F_Zmenaz> change = std::make_unique<F_Zmenaz>();
    std::unique_ptr<frmOprav> correction = std::make_unique<frmOprav>();

    Forms() = default;
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;
    ~Forms() override {
        list.reset();
        components.reset();
        composition.reset();
        display.reset();
        change.reset();
        correction.reset();
    }

    void renewList() override { list = std::make_shared<F_Sezn>(); }
};

// Every object has them; see the creation of Smes.
inline Forms& formsOf(const State& state) { return static_cast<Forms&>(*state.dialogs); }

}  // namespace velor

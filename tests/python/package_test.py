"""The installed package: its numbers are the library's, and what callers get wrong is told."""

import csv
import io
import multiprocessing
import os
import pickle
import subprocess
import threading
import warnings

import numpy as np
import pytest

import velor

COMMAND = os.path.join(os.environ["VELOR_PROGRAMS"], "velor")
pytestmark = pytest.mark.filterwarnings("ignore::velor.VelorWarning")


@pytest.fixture
def mixture():
    return velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])


@pytest.mark.parametrize("code", velor.properties)
def test_values_are_those_of_the_command(mixture, code):
    row = velor.properties[code]
    for P in ("1e4", "3e6"):
        state = ["-T", "250:640:10"] * row.needs_temperature + ["-P", P] * row.needs_pressure
        asked = [COMMAND, "vlastnost", code, "--latky", "1,235", "--slozeni", "0.4,0.6", "--csv", *state]
        printed = subprocess.run(asked, capture_output=True, text=True, encoding="utf-8").stdout
        lines = list(csv.reader(io.StringIO(printed)))[1:]
        given = {"T": np.arange(250.0, 641.0, 10.0)} if row.needs_temperature else {}
        given.update({"P": [float(P)]} if row.needs_pressure else {})
        values, verdicts = getattr(mixture, code)(**given, with_verdict=True)
        np.testing.assert_array_equal(np.ravel(values), [float(line[-2] or "nan") for line in lines])
        words = verdicts.words if given else [verdicts.word]
        assert list(words) == [line[-1] for line in lines]


def test_help_tells_unit_and_rule():
    for row in velor.properties.values():
        told = getattr(velor.Mixture, row.code).__doc__
        assert row.unit in told and row.rule in told


def test_shapes_broadcast(mixture):
    T = np.linspace(290.0, 350.0, 7)
    assert type(mixture.ROLW(300)) is float and type(mixture.VSM()) is float
    assert mixture.RHG(T[:, None], [1e5, 1e6]).shape == (7, 2)
    assert mixture.ROLW(np.empty((0, 3))).shape == (0, 3)
    x = np.linspace([0, 1], [1, 0], 5)
    one_by_one = np.array([mixture.with_composition(mole=one).ROLW(T) for one in x])
    for layout in (x, np.asfortranarray(x), np.repeat(x, 2, axis=0)[::2], x[::-1][::-1]):
        many = mixture.with_composition(mole=layout)
        np.testing.assert_allclose(many.ROLW(T[:, None]).T, one_by_one, rtol=1e-14)
        assert many.ROLW(T[0]).shape == (5,)
    long = np.resize(T, 200_001)  # more than is computed at once
    np.testing.assert_array_equal(mixture.ROLW(long), np.resize(mixture.ROLW(T), long.size))
    np.testing.assert_array_equal(mixture.ROLW(np.repeat(T, 2)[::2]), mixture.ROLW(list(T)))
    np.testing.assert_array_equal(mixture.ROLW(np.float32([300])), mixture.ROLW([300]))
    by_mass = velor.Mixture([1, 235], mass=mixture.mass)
    np.testing.assert_allclose(by_mass.mole, mixture.mole, rtol=1e-14)
    assert by_mass.ROLW(300) == pytest.approx(mixture.ROLW(300), rel=1e-14)
    parts = velor.Mixture([1, 235], mole=[2, 3], normalised=True)
    assert parts.ROLW(300) == mixture.ROLW(300)
    assert mixture.components[1].TENS(300) == velor.Mixture("ethanol").TENS(300)


MISUSES = {
    "text": (lambda m: m.ROLW("300"), velor.TypeMismatchError, 13),
    "complex": (lambda m: m.ROLW(1j), velor.TypeMismatchError, 13),
    "ragged": (lambda m: m.ROLW([[1, 2], [3]]), velor.TypeMismatchError, 13),
    "shapes": (lambda m: m.RHG([300, 310], [1e5, 2e5, 3e5]), velor.UsageError, 9),
    "missing pressure": (lambda m: m.table("RHG", T=300), velor.UsageError, 5),
    "fractions": (lambda m: m.with_composition(mole=[0.4, 0.3, 0.3]), velor.UsageError, 9),
    "sum": (lambda m: m.with_composition(mole=[0.4, 0.5]), velor.UsageError, 5),
    "negative": (lambda m: m.with_composition(mole=[1.4, -0.4]), velor.UsageError, 5),
    "both": (lambda m: m.with_composition(mole=[1, 0], mass=[1, 0]), velor.UsageError, 5),
    "threads": (lambda m: velor.Mixture(1, threads=0), velor.UsageError, 5),
    "substance": (lambda m: velor.Mixture("xylen"), velor.UnknownSubstanceError, 9),
    "number": (lambda m: velor.Mixture(32000), velor.UnknownSubstanceError, 9),
    "no substance": (lambda m: velor.Mixture([]), velor.UsageError, 9),
    "kind of substance": (lambda m: velor.Mixture([1.5]), velor.TypeMismatchError, 13),
    "property": (lambda m: m.table("ROLWX", T=300), velor.UnknownPropertyError, 9),
    "database": (lambda m: velor.Mixture(1, database="/nikde/VELOR.DRC"), velor.DatabaseError, 76),
    "no database": (lambda m: velor.Mixture(1, database=__file__), velor.DatabaseError, 13),
}


@pytest.mark.parametrize("misuse", MISUSES)
def test_misuse_is_told(mixture, misuse):
    call, kind, number = MISUSES[misuse]
    with pytest.raises(kind) as told:
        call(mixture)
    again = pickle.loads(pickle.dumps(told.value))
    assert (again.number, again.text, str(again)) == (number, told.value.text, str(told.value)) and told.value.text


def test_what_is_not_in_range_is_told_once(mixture):
    with pytest.warns(velor.VelorWarning) as told:
        values = mixture.ROLW([300, np.nan, 535, -1])
    assert len(told) == 1 and told[0].filename == __file__
    assert "extrapolováno (1)" in str(told[0].message) and "chyba (2)" in str(told[0].message)
    assert np.isnan(values[[1, 3]]).all() and np.isfinite(values[[0, 2]]).all()
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        _, verdicts = mixture.ROLW([300, np.nan, 535, -1], with_verdict=True)
        assert mixture.ROLW(300) > 0
    assert verdicts.has_value.tolist() == [True, False, True, False] and verdicts[2].mark == "*"


def test_equilibrium_meets_its_law(mixture):
    vapour_pressures = [component.TENS for component in mixture.components]
    for P in (3e4, 101325.0):
        bubble, dew = mixture.bubble_point(P), mixture.dew_point(P)
        partial = [x * p(bubble.T) for x, p in zip(bubble.liquid, vapour_pressures)]
        assert sum(partial) == pytest.approx(P, rel=1e-6)
        np.testing.assert_allclose(bubble.vapour, np.array(partial) / P, rtol=1e-6)
        liquid = [y * P / p(dew.T) for y, p in zip(dew.vapour, vapour_pressures)]
        np.testing.assert_allclose(dew.liquid, liquid, rtol=1e-6)
    moist = velor.Mixture(["voda", "dusík"], mole=[0.1, 0.9]).dew_point()
    assert moist.verdict.word == "inertní složka" and moist.liquid.tolist() == [1, 0]
    diagram = mixture.txy(points=5)
    assert (diagram.bubble <= diagram.dew).all() and (np.diff(diagram.y) > 0).all()


def test_flashes_keep_what_goes_in():
    feed = velor.Mixture(["pentan", "hexan", "heptan"], mole=[0.3, 0.3, 0.4])
    both = feed.flash(np.linspace(320, 370, 11)[:, None], [1e5, 1.2e5])
    assert both.outcome.shape == (11, 2) and set(both.outcome.ravel()) == {"liquid", "both", "vapour"}
    vapour = both.vapour_fraction[..., None]
    np.testing.assert_allclose(vapour * both.vapour + (1 - vapour) * both.liquid, feed.mole + 0 * vapour, atol=1e-3)
    cooled = feed.flash(380, 101325, adiabatic=True)
    assert cooled.outcome == "both" and cooled.bubble < cooled.T < cooled.dew and cooled.passes > 0
    assert feed.flash(np.empty(0)).liquid.shape == (0, 3) and feed.flash(np.nan).outcome == "none"


def test_units_go_in_and_out(mixture):
    pint = pytest.importorskip("pint")
    u = pint.UnitRegistry()
    density = mixture.ROLW(u.Quantity([26.85, 46.85], "degC"))
    np.testing.assert_allclose(density.to("g/cm**3").magnitude * 1e3, mixture.ROLW([300, 320]), rtol=1e-12)
    assert mixture.bubble_point(u.Quantity(1, "atm")).T.to("K").magnitude == mixture.bubble_point(101325).T
    assert all(u.parse_units(velor._arrays.unit_name(row.unit)) is not None for row in velor.properties.values())
    with pytest.raises(velor.TypeMismatchError):
        mixture.ROLW(u.Quantity(300, "Pa"))


def test_tables_and_pictures(mixture, tmp_path):
    pytest.importorskip("pandas")
    pyplot = pytest.importorskip("matplotlib.pyplot")
    frame = mixture.table(["ROLW", "RHG"], T=[300, 320, 535], P=1e5, with_verdict=True)
    assert frame.attrs["units"]["RHG"] == "J/mol" and frame["ROLW"].tolist() == mixture.ROLW([300, 320, 535]).tolist()
    assert list(frame["ROLW_stav"]) == ["v rozsahu", "v rozsahu", "extrapolováno"]
    axes = mixture.plot(["ROLW", "ETAL"], T=np.linspace(280, 560, 57))
    assert [panel.get_ylabel() for panel in axes] == [velor.properties[code].label for code in ("ROLW", "ETAL")]
    assert [line.get_linestyle() for line in axes[0].get_lines()[:2]] == ["-", "--"]
    assert velor.plot_txy(mixture).get_ylabel() == "teplota T [K]"
    pyplot.savefig(tmp_path / "txy.png")


def test_closed_library_says_so_and_opens_again(mixture):
    before = mixture.ROLW(300)
    velor.close()
    try:
        for call in (lambda: mixture.ROLW(300), lambda: velor.substances["voda"], lambda: velor.Mixture("voda")):
            with pytest.raises(velor.ClosedError, match="velor.open"):
                call()
    finally:
        velor.open()
    assert mixture.ROLW(300) == before


def test_closing_and_threads_do_not_disturb_each_other(mixture):
    T = np.linspace(280, 360, 20_000)
    expected, wrong = mixture.ROLW(T), []

    def compute():
        for _ in range(20):
            try:
                wrong.append(not np.array_equal(mixture.ROLW(T), expected))
            except velor.ClosedError:
                pass

    threads = [threading.Thread(target=compute) for _ in range(3)]
    for thread in threads:
        thread.start()
    while any(thread.is_alive() for thread in threads):
        velor.close()
        velor.open()
    assert not any(wrong)
    np.testing.assert_array_equal(velor.Mixture([1, 235], mole=[0.4, 0.6], threads=2).ROLW(T), expected)


def density(mixture):
    return mixture.ROLW(300)


@pytest.mark.parametrize("method", multiprocessing.get_all_start_methods())
def test_other_processes_compute_the_same(mixture, method):
    with multiprocessing.get_context(method).Pool(1) as pool:
        assert pool.apply(density, [mixture]) == mixture.ROLW(300)
    assert b"VELOR.DRC" not in pickle.dumps(mixture)


def test_substances_tell_what_the_database_holds():
    water = velor.substances["7732-18-5"]
    assert (water.number, water.formula) == (1, "H2O") and water is not None
    assert velor.substances["Water"] == velor.substances[1] == velor.substances[np.int64(1)] == water
    assert "voda" in velor.substances and 32000 not in velor.substances and len(velor.substances) > 400
    assert water.constants["Tkr"] == pytest.approx(647.096, rel=1e-6)  # IAPWS
    correlation = water.correlations["TENS"]
    assert correlation.t_min < 300 < correlation.t_max and len(correlation.coefficients) == 6
    assert correlation.source and not correlation.is_estimate and velor.substances.supplement_note == ""
    named = next(substance for substance in velor.substances if substance.further_names)
    assert velor.substances[named.further_names[-1]] == named
    with pytest.raises(velor.UnknownSubstanceError) as told:
        velor.substances["xylen"]
    assert told.value.candidates[0] == "o-Xylen"

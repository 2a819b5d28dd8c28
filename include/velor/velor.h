/* The library for C and for every language that calls C: the catalogue of properties, the substances of a database,
 * properties and flashes of mixtures at many points.
 *
 * - All texts are UTF-8 and end in a zero byte. Those that are returned live as long as the handle that they came from,
 *   those of the catalogue for ever.
 * - A function that can fail returns a status and, where error is not NULL, tells number and text there. Nothing was
 *   computed then, and no output was touched.
 * - A structure tells its own size in its first member, so that a later library knows an earlier caller: set it to
 *   sizeof, or use the ..._INIT of its kind.
 * - Handles never change once made: any number of threads may use one. There is no other state.
 */
#ifndef VELOR_VELOR_H
#define VELOR_VELOR_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

enum velor_status {
    VELOR_OK = 0,
    VELOR_WRONG_USE = 1,      /* a null pointer, a size that does not fit, an index out of range, lengths that differ */
    VELOR_RUN_TIME_ERROR = 2, /* one of the library's classic errors, by its number: 53 file not found ... */
    VELOR_NO_MEMORY = 3,
    VELOR_UNEXPECTED = 4
};

typedef struct velor_error {
    size_t size;
    int number;     /* of VELOR_RUN_TIME_ERROR, else 0 */
    char text[256]; /* cut at a whole character */
} velor_error;
#define VELOR_ERROR_INIT \
    { sizeof(velor_error), 0, "" }

/* "0.1.0" */
const char* velor_version(void);

/* ---- Verdicts: how a value came about, or why there is none ------------------------------------------------------ */

int velor_verdict_count(void);
/* A word for machines, the sign behind the value and a Czech sentence; "" for a number that is no verdict. */
const char* velor_verdict_word(int verdict);
const char* velor_verdict_mark(int verdict);
const char* velor_verdict_note(int verdict);
/* 1 where there is a value, 0 where it is NaN. */
int velor_verdict_has_value(int verdict);

/* ---- The catalogue ----------------------------------------------------------------------------------------------- */

enum velor_phase { VELOR_ANY_PHASE = 0, VELOR_LIQUID = 1, VELOR_GAS = 2 };

typedef struct velor_property {
    size_t size;
    const char* code;    /* "ROLW" */
    const char* caption; /* Czech */
    const char* symbol;  /* "" for a pure property */
    const char* unit;    /* "" for a pure number */
    const char* rule;    /* whose mixing rule, with the year; "" for a pure property */
    int phase;
    int needs_temperature;
    int needs_pressure;
} velor_property;

/* Of mixtures, from index 0. velor_mixture_property: VELOR_WRONG_USE beyond them. The index of a code in any letter
 * case, -1 where there is none. */
int velor_mixture_property_count(void);
int velor_mixture_property(int index, velor_property* property);
int velor_find_mixture_property(const char* code);

/* Of pure substances likewise. */
int velor_pure_property_count(void);
int velor_pure_property(int index, velor_property* property);
int velor_find_pure_property(const char* code);

/* ---- The substances of a database -------------------------------------------------------------------------------- */

typedef struct velor_database velor_database;

typedef struct velor_substance {
    size_t size;
    int number;
    const char* name;
    const char* synonym;
    const char* formula;
    const char* cas; /* with hyphens; "" where it is not known */
} velor_substance;

/* Errors: 53, 70, 75, 76 the file cannot be opened; 13 it is no database. */
int velor_database_open(const char* path, velor_database** database, velor_error* error);
void velor_database_close(velor_database* database); /* NULL is nothing to close */

/* The substances by their numbers, from index 0. */
int velor_database_count(const velor_database* database);
int velor_database_substance(const velor_database* database, int index, velor_substance* substance);

enum velor_finding {
    VELOR_FOUND = 0,       /* the one */
    VELOR_INTERPRETED = 1, /* the one whose name begins so: tell the user */
    VELOR_UNKNOWN = 2,     /* those that may have been meant, the likeliest first */
    VELOR_SEVERAL = 3      /* each is called so */
};

/* The substances meant by a name, formula, number or CAS number: writes at most capacity of their numbers, their whole
 * count to count. */
int velor_database_find(const velor_database* database, const char* wanted, int* finding, int* numbers, int capacity,
                        int* count, velor_error* error);

/* Constant k (from 0) of the substance of that number in the unit told; NaN where it is not known. */
int velor_constant_count(void);
const char* velor_constant_key(int k); /* "Tkr"; "" beyond them */
const char* velor_constant_unit(int k);
int velor_database_constant(const velor_database* database, int number, int k, double* value);

typedef struct velor_correlation {
    size_t size;
    int is_given;
    int type;             /* of the equation, from 1 */
    const char* equation; /* as it is shown */
    double coefficients[6];
    double t_min, t_max; /* K */
} velor_correlation;

/* Of a pure property by its index. */
int velor_database_correlation(const velor_database* database, int number, int property,
                               velor_correlation* correlation);

/* ---- Mixtures and their properties at many points ---------------------------------------------------------------- */

typedef struct velor_mixture velor_mixture;

typedef struct velor_settings {
    size_t size;
    int soave;   /* 1: Soave's equation of state in place of Redlich and Kwong's */
    int clamped; /* 1: temperatures into the validity range of each correlation */
} velor_settings;
#define VELOR_SETTINGS_INIT \
    { sizeof(velor_settings), 0, 0 }

/* 1 to 20 substances of a database by their numbers. settings may be NULL. Error 9: a number without a substance. */
int velor_mixture_create(const velor_database* database, const int* numbers, int count, const velor_settings* settings,
                         velor_mixture** mixture, velor_error* error);
void velor_mixture_free(velor_mixture* mixture);

/* count numbers: one for all points or one each. */
typedef struct velor_series {
    const double* values;
    size_t count;
} velor_series;

/* The fraction of component i at point p is values[i * component_stride + p * point_stride]; a point stride of 0 is one
 * composition for all. count is the length of values. */
typedef struct velor_compositions {
    size_t size;
    const double* values;
    size_t count;
    ptrdiff_t component_stride;
    ptrdiff_t point_stride;
    int by_mass;
    int normalised; /* 1: parts of any sum are divided by it; 0: a sum other than 1 is a fault of the point */
} velor_compositions;

/* The property of an index at so many points: K, Pa, and the catalogue's unit. What the property does not need is not
 * read; values or verdicts may be NULL. A fault of one point leaves the others: its value is NaN and its verdict says
 * why. threads: 1 or more. */
int velor_evaluate(const velor_mixture* mixture, int property, velor_series temperatures, velor_series pressures,
                   const velor_compositions* compositions, size_t points, double* values, int* verdicts, int threads,
                   velor_error* error);

/* A pure property of one component, from 0. */
int velor_evaluate_pure(const velor_mixture* mixture, int property, int component, velor_series temperatures,
                        size_t points, double* values, int* verdicts, int threads, velor_error* error);

/* ---- Flashes at many points -------------------------------------------------------------------------------------- */

enum velor_flash_kind { VELOR_ISOTHERMAL = 0, VELOR_ADIABATIC = 1 };

enum velor_flash_outcome {
    VELOR_FLASH_NONE = 0, /* the verdict says why */
    VELOR_FLASH_ALL_VAPOUR = 1,
    VELOR_FLASH_ALL_LIQUID = 2,
    VELOR_FLASH_CONVERGED = 3, /* vapour and liquid */
    VELOR_FLASH_NOT_CONVERGED = 4
};

/* Where the results go: of each array one element a point, of the fractions and K-values component i of point p at
 * i * component_stride + p * point_stride. Any array may be NULL. NaN stands for none. */
typedef struct velor_flash_results {
    size_t size;
    int* outcomes;
    int* verdicts;
    int* passes;                /* 0 where nothing was iterated */
    double* vapour_fractions;   /* moles of vapour per mole of feed */
    double* temperatures;       /* K */
    double* bubble_points;      /* K */
    double* dew_points;         /* K */
    double* material_residuals; /* sum(x (1 - K)) as the last pass found it */
    double* energy_residuals;   /* J/mol, likewise; of an adiabatic flash */
    double* liquids;            /* mole fractions; 0 in a phase that is not there */
    double* vapours;
    double* equilibriums;  /* K = y / x; NaN of the feed alone */
    size_t fraction_count; /* the length of each of the last three */
    ptrdiff_t component_stride;
    ptrdiff_t point_stride; /* 0: one point right behind the other */
} velor_flash_results;
#define VELOR_FLASH_RESULTS_INIT \
    { sizeof(velor_flash_results), NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, 0, 1, 0 }

/* Flashes a feed at so many points: K (of an adiabatic flash the liquid feed's own temperature) and Pa. A fault of one
 * point leaves the others. threads: 1 or more. */
int velor_flash(const velor_mixture* mixture, int kind, velor_series temperatures, velor_series pressures,
                const velor_compositions* feeds, size_t points, const velor_flash_results* results, int threads,
                velor_error* error);

#ifdef __cplusplus
}
#endif

#endif

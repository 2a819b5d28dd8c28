/* A table of the density of ethanol and water over temperature and composition, from C. The argument is the database.
 *
 *     cc -std=c99 table.c $(pkg-config --cflags --libs velor) -o table && ./table VELOR.DRC
 */
#include <stdio.h>
#include <velor/velor.h>

enum { kTemperatures = 5, kCompositions = 3, kPoints = kTemperatures * kCompositions };

static int failed(const char* what, const velor_error* error) {
    fprintf(stderr, "%s: %s (%d)\n", what, error->text, error->number);
    return 1;
}

/* The number of the one substance of that name; 0 where there is none. */
static int number_of(const velor_database* database, const char* name) {
    int finding, number, count;
    const int status = velor_database_find(database, name, &finding, &number, 1, &count, NULL);
    return status == VELOR_OK && finding == VELOR_FOUND ? number : 0;
}

static int print_table(const velor_mixture* mixture) {
    double T[kPoints], x[2 * kPoints], density[kPoints];
    int verdicts[kPoints];
    for (int i = 0; i < kPoints; ++i) {
        T[i] = 280 + 20.0 * (i / kCompositions);
        x[2 * i] = 0.25 * (1 + i % kCompositions);
        x[2 * i + 1] = 1 - x[2 * i];
    }
    const velor_series temperatures = {T, kPoints}, pressures = {NULL, 0};
    const velor_compositions compositions = {sizeof compositions, x, 2 * kPoints, 1, 2, 0, 0};
    velor_error error = VELOR_ERROR_INIT;
    if (velor_evaluate(mixture, velor_find_mixture_property("ROLW"), temperatures, pressures, &compositions, kPoints,
                       density, verdicts, 1, &error) != VELOR_OK)
        return failed("ROLW", &error);
    printf("  T [K]  x(ethanol)  density [kg/m3]\n");
    for (int i = 0; i < kPoints; ++i)
        printf("%7.1f %11.2f %16.3f  %s\n", T[i], x[2 * i], density[i], velor_verdict_word(verdicts[i]));
    return 0;
}

int main(int argc, char** argv) {
    velor_error error = VELOR_ERROR_INIT;
    velor_database* database = NULL;
    velor_mixture* mixture = NULL;
    int result;
    if (argc < 2) {
        fprintf(stderr, "table VELOR.DRC\n");
        return 2;
    }
    if (velor_database_open(argv[1], &database, &error) != VELOR_OK) return failed(argv[1], &error);
    const int numbers[] = {number_of(database, "ethanol"), number_of(database, "voda")};
    if (velor_mixture_create(database, numbers, 2, NULL, &mixture, &error) == VELOR_OK)
        result = print_table(mixture);
    else
        result = failed("ethanol, voda", &error);
    velor_mixture_free(mixture);
    velor_database_close(database);
    return result;
}

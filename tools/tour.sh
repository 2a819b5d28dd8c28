# The tour of run.sh: real questions to the real database, each shown before its answer.
ask() {
    printf '\n\033[1m$ velor %s\033[0m\n' "$*"
    "$velor" "$@"
}
ask latka ethanol
ask ukazka ethanol -T 298.15
ask vlastnost TENS --latky voda,ethanol,benzen -T 300:370:10

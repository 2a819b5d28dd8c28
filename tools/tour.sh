# The tour of run.sh: real questions to the real database, each shown before its answer.
bold='' plain=''
if [ -t 1 ]; then bold=$'\033[1m' plain=$'\033[0m'; fi
ask() {
    printf '\n%s$ velor %s%s\n' "$bold" "$*" "$plain"
    "$velor" "$@"
}
ask ukazka ethanol -T 298.15
ask vlastnost ROLW --latky voda,ethanol --slozeni 0.4,0.6 -T 300:360:20
ask rovnovaha --latky benzen,toluen --body 6
ask prehled --latky benzen,toluen --slozeni 0.5,0.5 -T 350
ask flash --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 -T 340

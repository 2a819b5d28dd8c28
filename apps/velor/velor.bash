# Completion of velor for bash. The command itself knows what may stand where.
_velor() {
    local program=${1/#\~\//$HOME/} before=${COMP_LINE:0:COMP_POINT} listed='' answer
    type -P -- "$program" >/dev/null || program=velor
    [[ ${COMP_TYPE-} == 63 ]] && listed=--vypis # "?": bash only lists the candidates
    mapfile -t answer < <("$program" doplneni $listed -- "$COMP_WORDBREAKS" "$before" "${COMP_LINE:COMP_POINT}" \
        </dev/null 2>/dev/null)
    [[ ${answer[0]-} == nospace ]] && compopt -o nospace 2>/dev/null
    COMPREPLY=("${answer[@]:1}")
}
complete -F _velor velor

#!/usr/bin/awk -f
# A filter for Doxygen. In our headers a comment speaks for all declarations up to the next blank line; Doxygen takes it
# for the first one alone, so the others get it, too: on their own lines, which keeps the numbers of the lines. What the
# compiler makes (copies, destructors) is left out where nothing is said about it.

/^$/ || /^[^ ]/ { text = ""; commented = 0; print; next }

/^ *\/\/\/ / {
    line = $0
    sub(/^ *\/\/\/ /, "", line)
    text = commented ? text " " line : line
    commented = 1
    print
    next
}

!commented && / = (default|delete);$/ { print ""; next }

{
    code = $0
    sub(/ *\/\/.*/, "", code)
    if (!commented && !inside && text != "" && $0 !~ /\/\/\/</)
        sub(/[^ ]/, "/** " text " */ &")
    print
    commented = 0
    ends = code ~ /[;}]$/
    depth += gsub(/[({]/, "", code) - gsub(/[)}]/, "", code)
    inside = !(ends && depth == 0)
}

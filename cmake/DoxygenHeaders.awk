#!/usr/bin/awk -f
# A filter for Doxygen, which keeps the numbers of the lines.
#
# In our headers a comment speaks for all declarations up to the next comment or blank line; Doxygen takes it for the
# first one alone, so the others get it, too. What a section of a class has in common stands below its title:
#
#     // ---- title
#     // Common text, in one line or several.
#
# Each documented declaration gets that text behind its own. What the compiler makes (copies, destructors) is left out
# where nothing is said about it.

function withoutMark(line) {
    sub(/^ *\/\/\/? ?/, "", line)
    return line
}

# Prints the comment that was held back, with what the section says.
function release(addition,    number) {
    for (number = 1; number <= held; ++number)
        print comment[number] (number == held && addition != "" ? " " addition : "")
    held = 0
}

/^ *\/\/ ---- / { release(""); common = ""; inTitle = 1; print; next }
inTitle && /^ *\/\/ / { common = common (common == "" ? "" : " ") withoutMark($0); print; next }
{ inTitle = 0 }

/^$/ || /^[^ ]/ {
    release("")
    text = ""
    if (/^(}|public|protected|private|signals)/)
        common = ""
    print
    next
}

/^ *\/\/\/ / {
    text = held ? text " " withoutMark($0) : withoutMark($0)
    comment[++held] = $0
    next
}

!held && / = (default|delete);$/ { print ""; next }

{
    code = $0
    sub(/ *\/\/.*/, "", code)
    if (!held && !inside && text != "" && $0 !~ /\/\/\/</)
        sub(/[^ ]/, "/** " text (common == "" ? "" : " " common) " */ &")
    release(common)
    print
    ends = code ~ /[;}]$/
    depth += gsub(/[({]/, "", code) - gsub(/[)}]/, "", code)
    inside = !(ends && depth == 0)
}
END { release("") }

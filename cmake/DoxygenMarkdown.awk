#!/usr/bin/awk -f
# A filter for Doxygen: gives the headings the anchors that other readers of Markdown make of them, "Types and IDs"
# being #types-and-ids, with the name of the file in front of it, and takes links to there.

function base(path) {
    sub(/.*\//, "", path)
    sub(/\.md$/, "", path)
    return path
}

function anchor(heading) {
    heading = tolower(heading)
    gsub(/[^a-z0-9_ -]/, "", heading)
    gsub(/ /, "-", heading)
    return heading
}

/^```/ { code = !code }

!code && /^##+ / {
    heading = $0
    sub(/^#+ /, "", heading)
    $0 = $0 " {#" base(FILENAME) "-" anchor(heading) "}"
}

!code {
    gsub(/\]\(#/, "](#" base(FILENAME) "-")
    while (match($0, /\]\([A-Za-z\/_.-]*\.md#/))
        $0 = substr($0, 1, RSTART + 1) "#" base(substr($0, RSTART + 2, RLENGTH - 3)) "-" substr($0, RSTART + RLENGTH)
}

{ print }

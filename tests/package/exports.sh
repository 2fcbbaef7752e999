#!/usr/bin/env bash
# exports.sh LIST LIBRARY...: whether the libraries export the classes and functions of the list, and nothing else.
# A difference that is meant belongs into the list: the left column is what the list lacks.
set -euo pipefail
list=$1
shift

# Of "VelCoupon::type() const" and "vtable for VelCoupon" the class, of "sortByNumber(QString const&)" the function.
nm -DC --defined-only "$@" | sed -nE 's/^[0-9a-f]+ [A-Z] //p' |
  sed -E 's/^(vtable|typeinfo|typeinfo name|VTT|(virtual|non-virtual) thunk|guard variable) (for|to) //; s/(::|\().*//' |
  LC_ALL=C sort -u | LC_ALL=C comm -3 - "$list" | if grep .; then exit 1; fi

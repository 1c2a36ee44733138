# Completion of tomely-cli for fish.

set -l commands new info list dump export-csv export-xml import-xml rewrite check lookup help
set -l none "not __fish_seen_subcommand_from $commands"
set -l view "__fish_seen_subcommand_from list export-csv export-xml"
set -l look "__fish_seen_subcommand_from list"
set -l csv "__fish_seen_subcommand_from export-csv"

complete -c tomely-cli -f
complete -c tomely-cli -l help -d "explain the command"
complete -c tomely-cli -l version -d "print the version"

complete -c tomely-cli -n $none -a new -d "make an empty collection"
complete -c tomely-cli -n $none -a info -d "print what a collection is made of"
complete -c tomely-cli -n $none -a list -d "print what the list window would show"
complete -c tomely-cli -n $none -a dump -d "print everything in a collection as JSON"
complete -c tomely-cli -n $none -a export-csv -d "write books as comma-separated values"
complete -c tomely-cli -n $none -a export-xml -d "write books as an XML file"
complete -c tomely-cli -n $none -a import-xml -d "add the books of an XML file"
complete -c tomely-cli -n $none -a rewrite -d "write a collection in the current version"
complete -c tomely-cli -n $none -a check -d "read a whole collection and say whether it is sound"
complete -c tomely-cli -n $none -a lookup -d "ask web services for a book"
complete -c tomely-cli -n $none -a help -d "explain a command"

complete -c tomely-cli -n "__fish_seen_subcommand_from new info list dump export-csv export-xml import-xml rewrite check" -F
complete -c tomely-cli -n "__fish_seen_subcommand_from help" -a "$commands"
complete -c tomely-cli -n "__fish_seen_subcommand_from lookup" -l json -d "print one JSON object"

complete -c tomely-cli -n $view -x -l group -d "books of a group"
complete -c tomely-cli -n $view -x -l filter -d "column key to filter by"
complete -c tomely-cli -n $view -x -l text -d "what a text field must contain"
complete -c tomely-cli -n $view -x -l compare -d "how to compare" -a "equal not-equal less greater before after on-or-before on-or-after"
complete -c tomely-cli -n $view -x -l number -d "number to compare with"
complete -c tomely-cli -n $view -x -l month -d "month to compare with" -a "(seq 0 12)"
complete -c tomely-cli -n $view -x -l year -d "year to compare with"
complete -c tomely-cli -n $view -x -l state -d "which check boxes, images and groups" -a "all set unset"
complete -c tomely-cli -n $view -x -l type -d "book type" -a "0 1 2 3"
complete -c tomely-cli -n $view -x -l rating -d "rating" -a "(seq 0 5)"
complete -c tomely-cli -n $view -x -l sort -d "column key to sort by, plus 1 for descending"

complete -c tomely-cli -n $look -x -l columns -d "which columns" -a "visible all"
complete -c tomely-cli -n $look -x -l format -d "how to print" -a "table tsv json"

complete -c tomely-cli -n $csv -x -l columns -d "which columns" -a "all visible"
complete -c tomely-cli -n $csv -x -l dates -d "how dates are written" -a "split year month day"
complete -c tomely-cli -n $csv -x -l groups -d "how groups are written" -a "none flags names"
complete -c tomely-cli -n $csv -x -l group-delimiter -d "what stands between names of groups"
complete -c tomely-cli -n $csv -x -l switches -d "how check boxes are written" -a "10 truefalse yn"
complete -c tomely-cli -n $csv -x -l isbn -d "columns for the ISBN" -a "one two none"
complete -c tomely-cli -n $csv -x -l line-breaks -d "line breaks in texts" -a "keep space escape"

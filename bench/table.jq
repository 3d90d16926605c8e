# From the JSON of the benchmark programs, slurped into one list, to a Markdown table. Times of `perRecord` are seconds.

def digits($n): . as $value | if $value == 0 then "0" else
    ($n - 1 - ($value | fabs | log10 | floor)) as $places
    | if $places <= 0 then ($value | round | tostring)
      else pow(10; $places) as $scale | (($value * $scale | round) / $scale | tostring) end end;
def readable: # nanoseconds
    if . < 1e3 then "\(digits(3)) ns"
    elif . < 1e6 then "\(. / 1e3 | digits(3)) us"
    elif . < 1e9 then "\(. / 1e6 | digits(3)) ms"
    else "\(. / 1e9 | digits(3)) s" end;
def nanoseconds: .real_time * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[.time_unit];
def records: .run_name | split("/") | last | tonumber? // null;

def rows:
    ([.benchmarks[] | select(.aggregate_name == "median")]
     + ([.benchmarks[] | select(.error_occurred)] | unique_by(.run_name))) as $medians
    | ([$medians[] | select(.run_name | startswith("floor")) | {key: (records | tostring), value: nanoseconds}] | from_entries) as $floors
    | $medians[] | select(.run_name | startswith("floor") | not)
    | if .error_occurred then "| \(.run_name) | | **\(.error_message)** | | | |"
      else records as $n | nanoseconds as $time | $floors[$n | tostring] as $floor
        | "| \(.run_name | sub("/[0-9]+$"; "")) | \($n // "") | \($time | readable) | "
          + (if .perRecord then "\(.perRecord * 1e9 | digits(3)) ns | " else "| " end)
          + (if $floor then "\($floor / $n | digits(2)) ns | \($time / $floor | digits(2)) |" else " | |" end)
      end;

"Measured on \(.[0].context.num_cpus) cores of \($processor), \($compiler), release build.",
"",
"| what | records | time | a record | floor a record | times the floor |",
"|---|---:|---:|---:|---:|---:|",
(.[] | rows)

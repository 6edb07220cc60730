# What bash completes behind zelmodel; printed by "zelmodel completion bash".

# What may be typed behind the commands in $path.
_zelmodel_place()
{
    commands=() options=() valued=() arguments=()
    case $path in
    '')
        commands=(calendar check completion convert diff dump explain log man new next schema set show why)
        options=(-h --help --version)
        ;;
    calendar)
        options=(-h --help --json --no-color --reveal --window --month --year --svg --html)
        valued=(--window --month --year --svg --html)
        arguments=(FILE)
        ;;
    check)
        options=(-h --help --json --no-color --reveal --window --sarif)
        valued=(--window)
        arguments=(FILE...)
        ;;
    completion)
        options=(-h --help --json --no-color --reveal)
        arguments=(SHELL)
        ;;
    convert)
        options=(-h --help --json --no-color --reveal -o --output --in-place)
        valued=(-o --output)
        arguments=(FILE)
        ;;
    diff)
        options=(-h --help --json --no-color --reveal)
        arguments=(A B)
        ;;
    dump)
        options=(-h --help --json --no-color --reveal --kind)
        valued=(--kind)
        arguments=(FILE)
        ;;
    explain)
        options=(-h --help --json --no-color --reveal)
        arguments=(ID)
        ;;
    log)
        options=(-h --help --json --no-color --reveal --summary --json-lines --skipped --session --severity --since
                 --until --grep --rotated --follow --check)
        valued=(--session --severity --since --until --grep)
        arguments=(FILE...)
        ;;
    man)
        options=(-h --help --json --no-color --reveal)
        ;;
    new)
        commands=(job schedule window gfs)
        options=(-h --help --json --no-color --reveal)
        ;;
    'new job')
        options=(-h --help --daily --weekly --monthly --every --continuously --at --months --active-full
                 --active-full-months --synthetic-full --synthetic-full-months --keep-points --keep-days --keep-deleted
                 --compression --block-size --no-dedup --snapshot --pre-freeze --post-thaw --ignore-script-failures
                 --script-timeout --pre-job --post-job --retries --retry-wait --index --product-specific --gfs --window
                 --window-output -o --output --json --no-color --reveal)
        valued=(--weekly --monthly --every --at --months --active-full --active-full-months --synthetic-full
                --synthetic-full-months --keep-points --keep-days --keep-deleted --compression --block-size --snapshot
                --pre-freeze --post-thaw --script-timeout --pre-job --post-job --retries --retry-wait --index
                --product-specific --gfs --window --window-output -o --output)
        ;;
    'new schedule')
        options=(-h --help --daily --weekly --monthly --every --continuously --at --months --active-full
                 --active-full-months --synthetic-full --synthetic-full-months --window --window-output -o --output
                 --json --no-color --reveal)
        valued=(--weekly --monthly --every --at --months --active-full --active-full-months --synthetic-full
                --synthetic-full-months --window --window-output -o --output)
        ;;
    'new window')
        options=(-h --help --open --closed --offset -o --output --json --no-color --reveal)
        valued=(--open --closed --offset -o --output)
        ;;
    'new gfs')
        options=(-h --help --gfs -o --output --json --no-color --reveal)
        valued=(--gfs -o --output)
        ;;
    next)
        options=(-h --help --json --no-color --reveal --window --from --until -n --count --previous --ical)
        valued=(--window --from --until -n --count)
        arguments=(FILE)
        ;;
    schema)
        options=(-h --help --json --no-color --reveal --answer --relaxng)
        valued=(--answer)
        arguments=(KIND)
        ;;
    set)
        options=(-h --help --json --no-color --reveal --fields -o --output --in-place)
        valued=(-o --output)
        arguments=(FILE FIELD=VALUE...)
        ;;
    show)
        options=(-h --help --json --no-color --reveal)
        arguments=(FILE)
        ;;
    why)
        options=(-h --help --json --no-color --reveal --window --at --from)
        valued=(--window --at --from)
        arguments=(FILE)
        ;;
    esac
}

# What the option or argument $1 of these commands takes.
_zelmodel_value()
{
    case $path:$1 in
    'calendar:--window') files=yes ;;
    'calendar:--svg') files=yes ;;
    'calendar:--html') files=yes ;;
    'calendar:FILE') files=yes ;;
    'check:--window') files=yes ;;
    'check:FILE...') files=yes ;;
    'completion:SHELL')
        words=(bash zsh fish)
        ;;
    'convert:-o') files=yes ;;
    'convert:--output') files=yes ;;
    'convert:FILE') files=yes ;;
    'diff:A') files=yes ;;
    'diff:B') files=yes ;;
    'dump:--kind')
        words=(key-bundle key-set password-derived-key managing-server schedule-options job-start guid cloud-client text
               help)
        ;;
    'dump:FILE') files=yes ;;
    'explain:ID')
        words=(malformed-document missing-attribute missing-element refused-value unknown-document begin-is-no-date
               day-never-comes forms-disagree full-never-due narrowed-number never-runs no-such-time out-of-range
               refused-when-applied repeated-element retention-beyond-limits unknown-name window-always-closed
               window-closed-at-start day-misses-months fulls-without-effect ignored-text no-begin older-form
               rest-not-checked window-never-closes)
        ;;
    'log:--severity')
        words=(processing info warn error)
        ;;
    'log:FILE...') files=yes ;;
    'new job:--compression')
        words=(NoCompression Rle Lz4 Zstd3 Zstd9)
        ;;
    'new job:--block-size')
        words=(256 512 1024 2048 4096 8192)
        ;;
    'new job:--snapshot')
        words=(SnapshotRequired NoSnapshot Hybrid)
        ;;
    'new job:--index')
        words=(all none)
        ;;
    'new job:--window-output') files=yes ;;
    'new job:-o') files=yes ;;
    'new job:--output') files=yes ;;
    'new schedule:--window-output') files=yes ;;
    'new schedule:-o') files=yes ;;
    'new schedule:--output') files=yes ;;
    'new window:-o') files=yes ;;
    'new window:--output') files=yes ;;
    'new gfs:-o') files=yes ;;
    'new gfs:--output') files=yes ;;
    'next:--window') files=yes ;;
    'next:FILE') files=yes ;;
    'schema:--answer')
        words=(calendar check completion convert diff dump error explain log log-lines man new next schema set show why)
        ;;
    'schema:KIND')
        words=(backup-job-state backup-window cloud-container create-gfs-synthetic-full-spec create-synthetic-full-spec
               direct-backup-immutability-settings gfs-policy immutability-settings job-options job-session-details
               job-session-progress-details lone-schedule mount-session-details oracle-config postgres-config
               repository-limitations s3-params schedule-options server-job-options sql-variant task-log-record
               transform-spec)
        ;;
    'set:-o') files=yes ;;
    'set:--output') files=yes ;;
    'set:FILE') files=yes ;;
    'set:FIELD=VALUE...')
        words=(activeFull.dayOfMonth= activeFull.isEnabled= activeFull.monthMask= activeFull.scheduleType=
               activeFull.weekDayNumber= activeFull.weekMask= blockSize= compression= dedupEnabled=
               deletedVmDataRetentionDays= freezeThawScriptsTimeout= friday= gfsPolicy.isEnabled=
               gfsPolicy.monthly.beginTimeUtc= gfsPolicy.monthly.desiredTime= gfsPolicy.monthly.isEnabled=
               gfsPolicy.monthly.keepCount= gfsPolicy.monthly= gfsPolicy.weekly.beginTimeUtc=
               gfsPolicy.weekly.desiredTime= gfsPolicy.weekly.isEnabled= gfsPolicy.weekly.keepCount= gfsPolicy.weekly=
               gfsPolicy.yearly.beginTimeUtc= gfsPolicy.yearly.desiredTime= gfsPolicy.yearly.isEnabled=
               gfsPolicy.yearly.keepCount= gfsPolicy.yearly= hourlyOffsetMinutes= ignoreFreezeThawFailures=
               indexing.folders= indexing.type= isEnabled= jobStart.dayOfMonth= jobStart.isEnabled= jobStart.monthMask=
               jobStart.scheduleType= jobStart.time= jobStart.weekDayNumber= jobStart.weekMask= kind= maxDays=
               maxPoints= monday= monthly.beginTimeUtc= monthly.desiredTime= monthly.isEnabled= monthly.keepCount=
               monthly= postJobCommand= postThawCommand= preFreezeCommand= preJobCommand= productSpecific=
               retentionType= retryCount= retryTimeoutMs= saturday= schedule.activeFull.dayOfMonth=
               schedule.activeFull.isEnabled= schedule.activeFull.monthMask= schedule.activeFull.scheduleType=
               schedule.activeFull.weekDayNumber= schedule.activeFull.weekMask= schedule.jobStart.dayOfMonth=
               schedule.jobStart.isEnabled= schedule.jobStart.monthMask= schedule.jobStart.scheduleType=
               schedule.jobStart.time= schedule.jobStart.weekDayNumber= schedule.jobStart.weekMask=
               schedule.syntheticFull.dayOfMonth= schedule.syntheticFull.isEnabled= schedule.syntheticFull.monthMask=
               schedule.syntheticFull.scheduleType= schedule.syntheticFull.weekDayNumber=
               schedule.syntheticFull.weekMask= snapshotMode= sunday= syntheticFull.dayOfMonth= syntheticFull.isEnabled=
               syntheticFull.monthMask= syntheticFull.scheduleType= syntheticFull.weekDayNumber= syntheticFull.weekMask=
               thursday= tuesday= wednesday= weekly.beginTimeUtc= weekly.desiredTime= weekly.isEnabled=
               weekly.keepCount= weekly= yearly.beginTimeUtc= yearly.desiredTime= yearly.isEnabled= yearly.keepCount=
               yearly=)
        ;;
    'show:FILE') files=yes ;;
    'why:--window') files=yes ;;
    'why:FILE') files=yes ;;
    esac
}

_zelmodel()
{
    local path= option= operands_only= typed word stem before prefix= files= given=0 i
    local -a line=() commands options valued arguments words=()
    COMPREPLY=()

    # The shell cuts words at "=" and ":"; here they are whole again. It replaces only what stands behind the cut.
    for ((i = 1; i <= COMP_CWORD; ++i)); do
        if ((${#line[@]})) && [[ ${COMP_WORDS[i]} =~ ^[=:]+$ || ${COMP_WORDS[i - 1]} =~ ^[=:]+$ ]]; then
            line[${#line[@]} - 1]+=${COMP_WORDS[i]}
        else
            line+=("${COMP_WORDS[i]}")
        fi
    done
    typed=${line[${#line[@]} - 1]}
    stem=${COMP_WORDS[COMP_CWORD]}
    [[ $stem =~ ^[=:]+$ ]] && stem=
    before=${typed%"$stem"}

    _zelmodel_place
    for word in "${line[@]:0:${#line[@]} - 1}"; do
        if [[ -n $option ]]; then
            option=
        elif [[ -z $operands_only && $word == -- ]]; then
            operands_only=yes
        elif [[ -z $operands_only && $word == -?* ]]; then
            [[ " ${valued[*]} " == *" $word "* ]] && option=$word
        elif [[ " ${commands[*]} " == *" $word "* ]]; then
            path+=${path:+ }$word
            _zelmodel_place
        else
            given=$((given + 1))
        fi
    done

    if [[ -n $option ]]; then
        _zelmodel_value "$option"
    elif [[ -z $operands_only && $typed == --*=* ]]; then
        prefix=${typed%%=*}=
        typed=${typed#*=}
        _zelmodel_value "${prefix%=}"
    elif [[ -z $operands_only && $typed == -* ]]; then
        words=("${options[@]}")
    elif ((${#commands[@]})); then
        words=("${commands[@]}")
    elif ((given < ${#arguments[@]})); then
        _zelmodel_value "${arguments[given]}"
    elif ((${#arguments[@]})) && [[ ${arguments[${#arguments[@]} - 1]} == *... ]]; then
        _zelmodel_value "${arguments[${#arguments[@]} - 1]}"
    fi

    for word in "${words[@]}"; do
        [[ $word == "$typed"* ]] || continue
        word=$prefix$word
        COMPREPLY+=("${word#"$before"}")
    done
    # The shell itself knows best how names of files are quoted.
    [[ -n $files ]] && compopt -o default
    [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace
    return 0
}

complete -F _zelmodel zelmodel

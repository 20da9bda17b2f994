# Completion of orvalis-world for bash.
_orvalis_world() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} words=
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="check find export new template --help --version"
  else
    case $previous in
      --format)
        case $command in
          check) words="text short json sarif" ;;
          find) words="text csv json" ;;
          export) words="html csv geojson" ;;
        esac ;;
      --in) words="names descriptions sections" ;;
      --region) words="arvenna skaldor sarrakh ostrakh ancestors" ;;
      --min) words="fatal error warning note" ;;
      --lang) words="all none" ;;
      --select | --ignore | --explain)
        words=$(orvalis-world check --list-rules 2>/dev/null | cut -d' ' -f1) ;;
      *)
        case $command in
          check) words="--world --lang --format --select --ignore --min --strict --fix --unsafe-fixes
            --diff --watch --list-rules --explain --verbose --help" ;;
          find) words="--world --lang --region --section --exact --in --format --help" ;;
          export) words="--world --lang --region --section --format --title --no-pictures
            --no-portraits --output --help" ;;
          new) words="--world --empty --help" ;;
          template) words="--world --lang --german --missing --output --help" ;;
        esac
        case $current in -*) ;; *) words= ;; esac ;;
    esac
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o default -F _orvalis_world orvalis-world

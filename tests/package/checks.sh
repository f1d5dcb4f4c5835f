# Shared by check-deb and check-rpm: check WHAT COMMAND... runs the command
# quietly and counts it; finish prints the counts and gives the status.
passed=0
failed=0
check() {
  local what=$1
  shift
  if "$@" >/dev/null 2>&1; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAIL: $what"
  fi
}
finish() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}

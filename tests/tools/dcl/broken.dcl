good : dialog { ok_only; }
bad : dialog {
  : text { label = "x" }
}

// The dialog of materials.lsp.

materials : dialog {
  label = "Bill of materials";
  initial_focus = "rows";
  : row {
    : list_box { label = "&Blocks:"; key = "rows"; width = 52; height = 14; tabs = "7 22"; tab_truncate = true; }
    : column {
      : popup_list { label = "&Sort by:"; key = "sort"; edit_width = 14; list = "Block\nCount\nAttributes"; }
      : toggle { label = "&Attributes apart"; key = "apart"; }
      : toggle { label = "&Current space only"; key = "here"; }
      spacer;
      : text { label = "Share of the chosen block:"; }
      : image { key = "share"; width = 26; height = 1.5; fixed_width = true; fixed_height = true;
                color = dialog_background; }
      : text { key = "total"; width = 26; }
    }
  }
  : boxed_row {
    label = "Table in the drawing";
    : edit_box { label = "&Title:"; key = "title"; edit_limit = 60; }
    : edit_box { label = "Text &height:"; key = "height"; edit_width = 8; fixed_width = true; }
    : button { label = "&Draw <"; key = "draw"; fixed_width = true; }
  }
  : row {
    fixed_width = true;
    alignment = centered;
    : button { label = "&File..."; key = "file"; fixed_width = true; width = 12; }
    : button { label = "Close"; key = "cancel"; is_cancel = true; is_default = true; fixed_width = true; width = 12; }
  }
  errtile;
}

// A tile of every kind.

dcl_settings : default_dcl_settings { audit_level = 2; }

narrow : edit12_box { edit_limit = 8; }

tiles : dialog {
  label = "Every tile";
  key = "title";
  initial_focus = "name";
  : row {
    : boxed_column {
      label = "Fields";
      : edit_box { label = "&Name:"; key = "name"; value = "door"; }
      : narrow { label = "Short:"; key = "short"; mnemonic = "S"; }
      : edit_box { label = "Secret:"; key = "secret"; edit_width = 12; password_char = "*"; allow_accept = true; }
      : popup_list { label = "&Layer:"; key = "layer"; edit_width = 12; list = "0\nWalls\nDoors"; value = "1"; }
      : toggle { label = "&Visible"; key = "visible"; value = "1"; }
      : toggle { label = "Off"; key = "off"; is_enabled = false; }
      : slider { key = "size"; min_value = 10; max_value = 20; small_increment = 1; big_increment = 5; value = "12"; }
    }
    : column {
      : list_box { label = "&Blocks:"; key = "blocks"; width = 24; height = 5; tabs = "12"; allow_accept = true; }
      : list_box { key = "many"; height = 4; multiple_select = true; list = "a\nb\nc\nd"; value = "0 2"; }
    }
    : column {
      : boxed_radio_column {
        label = "Side"; key = "side"; value = "right";
        : radio_button { label = "Left"; key = "left"; }
        : radio_button { label = "Right"; key = "right"; }
      }
      : radio_row {
        key = "how";
        : radio_button { label = "One"; key = "one"; value = "1"; }
        : radio_button { label = "All"; key = "all"; action = "(setq seen (strcat \"own \" $key))"; }
      }
      : row {
        : image_block { key = "picture"; }
        : icon_image { key = "icon"; color = 5; }
        swatch;
      }
      : slider { layout = vertical; key = "up"; max_value = 4; }
    }
  }
  : paragraph {
    : concatenation {
      : text_part { label = "Length: "; }
      : text_part { key = "length"; width = 10; value = "0.0"; }
    }
    : text { label = "Bold"; is_bold = true; alignment = centered; }
  }
  spacer_1;
  : row {
    spacer_0;
    : button { label = "&Pick <"; key = "pick"; action = "(setq seen (strcat $key $value)) (done_dialog 5)";
               fixed_width = true; }
    : button { label = "Bad"; key = "bad"; action = "(action-with-fault)"; }
    : button { label = "More..."; key = "more"; }
    spacer_0;
  }
  ok_cancel_help_errtile;
}

second : dialog { label = "Second"; : edit_box { key = "inner"; } ok_cancel; }

closing : dialog {
  label = "Closing";
  : text { label = "No button cancels."; }
  : button { label = "Go"; key = "go"; is_default = true; }
}

plain : dialog { label = "Plain"; ok_only; }

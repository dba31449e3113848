// Tiles that every dialog file may use without including anything. Row, column, button and the other kinds come with
// the program; what is here is put together from them.

// Room.
spacer_0 : spacer { width = 0; height = 0; }
spacer_1 : spacer { width = 1; height = 1; fixed_width = true; fixed_height = true; }

// Texts and fields of common widths.
text_25 : text { width = 25; }
edit12_box : edit_box { edit_width = 12; }
edit32_box : edit_box { edit_width = 32; }
errtile : text { key = "error"; label = ""; width = 35; }

// Pictures.
image_block : image { width = 12; aspect_ratio = 1.5; color = graphics_background; fixed_width = true;
                      fixed_height = true; }
icon_image : image_button { width = 12; aspect_ratio = 1.5; color = graphics_background; allow_accept = true;
                            fixed_width = true; fixed_height = true; }
swatch : image { width = 4; height = 1.2; fixed_width = true; fixed_height = true; alignment = centered; }

// Buttons that close a dialog, or that every dialog may have.
default_button : button { is_default = true; }
retirement_button : button { fixed_width = true; width = 10; alignment = centered; }
ok_button : retirement_button { label = "OK"; key = "accept"; is_default = true; }
cancel_button : retirement_button { label = "Cancel"; key = "cancel"; is_cancel = true; }
help_button : retirement_button { label = "&Help"; key = "help"; is_help = true; }
info_button : retirement_button { label = "&Info..."; key = "info"; }

retirement_row : row { fixed_width = true; alignment = centered; }
ok_only : column { : retirement_row { ok_button; } }
ok_cancel : column { : retirement_row { ok_button; : spacer { width = 2; } cancel_button; } }
ok_cancel_help : column {
    : retirement_row { ok_button; : spacer { width = 2; } cancel_button; : spacer { width = 2; } help_button; }
}
ok_help : column { : retirement_row { ok_button; : spacer { width = 2; } help_button; } }
ok_cancel_help_info : column {
    : retirement_row {
        ok_button; : spacer { width = 2; } cancel_button; : spacer { width = 2; } help_button;
        : spacer { width = 2; } info_button;
    }
}
ok_cancel_err : column { ok_cancel; errtile; }
ok_cancel_errtile : ok_cancel_err { }
ok_cancel_help_err : column { ok_cancel_help; errtile; }
ok_cancel_help_errtile : ok_cancel_help_err { }

// Buttons, fields and lists whose width is as fixed as their names say, for those that stand below each other.
fcf_ebox : edit_box { horizontal_margin = none; edit_limit = 10; edit_width = 7; fixed_width = true; width = 10; }
fcf_ebox1 : edit_box { horizontal_margin = none; edit_limit = 10; edit_width = 7; fixed_width = true; width = 10; }
fcf_ibut : image_button { horizontal_margin = none; width = 6.0; height = 1.5; color = graphics_background;
                          fixed_width = true; fixed_height = true; }
fcf_ibut1 : fcf_ibut { width = 3.0; }

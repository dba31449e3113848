(view)(line 0 0 10 0) ;! CIRCLE|_mid|4,0.5|2 ;= LINE 10=0,0,0 11=10,0,0; CIRCLE 10=5,0,0 40=2
(view)(line 0 0 10 0) ;! LINE|5,8|_per|3,0| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=5,8,0 11=5,0,0
(view)(line 0 0 10 0) ;! CIRCLE|_end|3,3|2 ;> No endpoint found for specified point. ;= LINE 10=0,0,0 11=10,0,0
(view)(line 0 0 10 0) ;! LINE|_non|9.5,0.5|.x|_end|9,0|0,4| ;~ keeps
;= LINE 10=0,0,0 11=10,0,0; LINE 10=9.5,0.5,0 11=10,4,0
(view)(line 0 0 10 0) ;! ERASE|_nea|5,1| ;=
(view)(line 0 0 10 0)(line 5 -5 5 5)(turned) ;! CIRCLE|_end,_int|-20,5|2
;= LINE 10=0,0,0 11=10,0,0; LINE 10=5,-5,0 11=5,5,0; CIRCLE 10=5,0,0 40=2
(setvar "OSMODE" 0) ;! -OSNAP|_end,_int ;? (getvar "OSMODE") ;= 33
(setvar "OSMODE" 4) ;! OSNAP|none ;? (getvar "OSMODE") ;= 0
(setvar "OSMODE" 4) ;! DSETTINGS| ;> Current osnap modes: Cen ;? (getvar "OSMODE") ;= 4
(setvar "OSMODE" 4) ;! -OSNAP|end,xyz ;> Invalid object snap mode. ;? (getvar "OSMODE") ;= 4
(setvar "APERTURE" 10) ;! APERTURE|20 ;? (getvar "APERTURE") ;= 20
(setvar "APERTURE" 10) ;! APERTURE|99 ;> Value must be between 1 and 50. ;? (getvar "APERTURE") ;= 10
(setvar "OSMODE" 33) ;! -OSNAP|_off ;? (getvar "OSMODE") ;= 0

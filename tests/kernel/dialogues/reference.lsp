(site) ;! -XREF|?|* ;> "Site"  none.dxf  Attach ;? (site-entry) ;= (4 "none.dxf")
(site) ;! -XREF|D|Site ;> "Site" detached. ;=
(site)(lock "0") ;! -XREF|D|Site ;> 1 was on a locked layer ;= INSERT 2=Site 10=1,2,0
(site) ;! -XREF|P|S*|new.dxf ;? (site-entry) ;= (4 "new.dxf")
(site) ;! -XREF|B|Site ;> Cannot find file ;? (site-entry) ;= (4 "none.dxf")
(site) ;! -XREF|R|Site ;> Cannot find file ;? (site-entry) ;= (4 "none.dxf")
(site) ;! -XREF|U|site ;> "Site" unloaded. ;? (site-entry) ;= (4 "none.dxf")
(site) ;! -XREF|D|Other,S?te ;> "Site" detached. ;=
(site) ;! -XREF|D|S ;> No matching references ;= INSERT 2=Site 10=1,2,0
(site) ;! -XREF|P|Site| ;> Old path: none.dxf ;? (site-entry) ;= (4 "none.dxf")
;! -XREF|A|none.dxf ;> Cannot find file "none.dxf" ;=
;! -XREF|A|"no ne.dxf" ;> Cannot find file "no ne.dxf" ;=
(site) ;! -XREF|P|S*|"new one.dxf" ;? (site-entry) ;= (4 "new one.dxf")

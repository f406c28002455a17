YSSY
Sydney/Kingsford Smith              
E 151* 10.63m
S 33* 56.77m

WOL  
WOL  
E 150* 47.50m
S 34* 33.49m

TOC
TOC
E 149* 54.00m
S 34* 54.00m

BOD
BOD
E 146* 30.00m
S 36* 30.00m

CWS  
COWES 275.00
E 145* 45.00m
S 36* 54.00m

YMML
Melbourne Intl                      
E 144* 50.60m
S 37* 40.40m


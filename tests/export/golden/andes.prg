SCEL
Arturo Merino Benitez               
W 70* 47.15m
S 33* 23.58m

UMKAL
UMKAL
W 70* 02.70m
S 33* 02.40m

TOC
TOC
W 69* 30.00m
S 32* 59.40m

DOZ  
MENDOZA 114.90
W 68* 47.80m
S 32* 49.70m

SAEZ
Ministro Pistarini                  
W 58* 32.15m
S 34* 49.33m


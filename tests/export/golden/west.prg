KSEA
Seattle Tacoma Intl                 
W 122* 18.56m
N 47* 26.94m

OLM  
OLYMPIA 113.40
W 122* 54.13m
N 46* 58.29m

TOC
TOC
W 122* 45.00m
N 46* 07.50m

BTG  
BATTLE GROUND 116.60
W 122* 35.49m
N 45* 44.87m

JOBOE
JOBOE
W 122* 01.00m
N 43* 30.00m

LMT  
KLAMATH FALLS 332.50
W 121* 43.65m
N 42* 09.18m

REBRG
REBRG
W 121* 12.00m
N 40* 01.20m

AVE  
AVENAL 370.00
W 119* 58.72m
N 35* 38.82m

BOD
BOD
W 119* 24.00m
N 35* 12.00m

FIM  
FILLMORE 112.50
W 118* 52.88m
N 34* 21.40m

KLAX
Los Angeles Intl                    
W 118* 24.49m
N 33* 56.55m


EGLC
London City                         
E 0* 03.32m
N 51* 30.32m

DGAA
Kotoka Intl                         
W 0* 10.00m
N 0* 30.00m


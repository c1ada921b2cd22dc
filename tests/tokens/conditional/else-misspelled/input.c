#elf x
#el y

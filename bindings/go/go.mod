module quorin/lapacks

go 1.19

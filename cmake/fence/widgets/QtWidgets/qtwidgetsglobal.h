// Found before the toolkit's own header by folders that do not link QtWidgets.
#error "this folder does not link QtWidgets: no widget belongs here"

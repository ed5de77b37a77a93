// Found before the toolkit's own header by folders that link QtCore alone.
#error "this folder links QtCore only: nothing of QtGui belongs here"

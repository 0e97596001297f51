import sys

import kostyle

with kostyle.Manager("guide", sys.argv[1], sys.argv[2]) as manager:
    manager.read()
    # fragment

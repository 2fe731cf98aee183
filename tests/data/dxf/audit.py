#!/usr/bin/python3
"""Reads a drawing with python3-ezdxf and prints what its audit finds, how many entities of each type model space holds,
and the box of those that are no texts."""
import collections
import sys

import ezdxf
from ezdxf import bbox

doc = ezdxf.readfile(sys.argv[1])
auditor = doc.audit()
for kind, findings in (('error', auditor.errors), ('fix', auditor.fixes)):
    for finding in findings:
        print(kind, finding.code, finding.message)
for name, count in sorted(collections.Counter(entity.dxftype() for entity in doc.modelspace()).items()):
    print(name, count)
flat = [entity for entity in doc.modelspace() if entity.dxftype() in ('LINE', 'ARC', 'LWPOLYLINE')]
box = bbox.extents(flat)
if box.has_data:
    print('box', *box.extmin, *box.extmax)

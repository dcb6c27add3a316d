import	QtQuick	2.15

Item	{
	width	:	10
	anchors	.	fill	:	parent
		property	int	depth	:	3
		Text	{	text:	"a	b"	}
	}

//top a b sel
//

// (legal notice)

// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	a,
	b,
	sel,
	y,
	z) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  a;
	input   [3:0]  b;
	input   sel;
	output   [3:0]  y;
	output   z;

	wire en;
	wire  [3:0]  t;

	assign
		en = 1'b1,
		t = ((a & b) | {4{sel}}),
		y = {t[1:0], a[3], sel},
		z = ((((t[0] ^ t[1]) ^ t[2]) ^ t[3]) & en);
endmodule //top
//VALID FILE

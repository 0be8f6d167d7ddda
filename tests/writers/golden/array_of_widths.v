//==== top.v ====
//top a b
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//wide WIDTH=3 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgeb1
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [2:0]  d;
	output   [2:0]  q;


	assign
		q = (~ d);
endmodule //top_mgeb1


//wide WIDTH=1 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgcb1
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [0:0]  d;
	output   [0:0]  q;


	assign
		q = (~ d);
endmodule //top_mgcb1

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	a,
	b,
	y,
	z) /* synthesis synthesis_lumenbox=1 */;
	input   [2:0]  a;
	input   [0:0]  b;
	output   [2:0]  y;
	output   [0:0]  z;

	wire  [2:0]   wire_w_0q;
	wire  [0:0]   wire_w_1q;

	top_mgeb1   w_0
	( 
	.d(a),
	.q(wire_w_0q[2:0]));
	top_mgcb1   w_1
	( 
	.d(b),
	.q(wire_w_1q[0:0]));
	assign
		y = wire_w_0q[2:0],
		z = wire_w_1q[0:0];
endmodule //top
//VALID FILE
